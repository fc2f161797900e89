#pragma once

/// Deletes backups older than sixty days from the backup folder if the preferences ask for it. Any file whose name ends
/// in a claim's extension counts, whichever program wrote it. A failure raises an error and leaves the remaining files.
void mdAutoDeleteBackups();
