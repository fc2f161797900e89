#pragma once

class QWidget;

/// Shows the preferences on one of their pages, 1 General Settings, 2 Replacements, 3 Rate Sets, and returns when they
/// are closed.
void mdShowPreferences(QWidget *owner, int page = 1);
