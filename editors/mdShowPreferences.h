#pragma once

class QWidget;

/// Shows the preferences on one of their pages, 1 General Settings, 2 Replacements, 3 Rate Sets, and returns when they
/// are closed. From a box of the preferences themselves it only turns to the page: there are no two over each other, of
/// which the lower would show what is no longer so.
void mdShowPreferences(QWidget *owner, int page = 1);
