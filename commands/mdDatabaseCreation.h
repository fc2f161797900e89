#pragma once

/// Lets an administrator choose or make a database folder, writes fresh preferences into it (existing ones are
/// overwritten without a question) and stores it as the database folder.
void CreateDatabases();
