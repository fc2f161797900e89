#pragma once

/// Lets an administrator choose or create a database folder, writes new preferences into it (without asking, even over
/// existing ones) and stores it as the database folder.
void CreateDatabases();
