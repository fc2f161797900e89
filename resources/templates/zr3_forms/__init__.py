"""The page templates of the printed forms: look, pieces, pages and packages."""
