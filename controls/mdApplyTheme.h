#pragma once

class QApplication;

/// Sets the program's style and palette. Call once, before any window is created.
void mdApplyTheme(QApplication &application);
