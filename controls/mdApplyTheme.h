#pragma once

class QApplication;

/// Gives the program its style and palette. To be called once, before any window is made.
void mdApplyTheme(QApplication &application);
