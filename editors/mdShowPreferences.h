#pragma once

class QWidget;

/// Shows the preferences on a page (1 General Settings, 2 Replacements, 3 Rate Sets) until they are closed. Called from
/// a box of the open preferences it only turns the page, because the lower of two open windows would show old values.
void mdShowPreferences(QWidget *owner, int page = 1);
