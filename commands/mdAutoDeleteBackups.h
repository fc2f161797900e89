#pragma once

/// Deletes what is older than sixty days from the backup folder, where the preferences ask for it. Every file counts
/// whose name ends in the letters of a claim, whoever wrote it. A failure is an error, and the rest is left.
void mdAutoDeleteBackups();
