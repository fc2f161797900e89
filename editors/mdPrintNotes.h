#pragma once

class frmSection;

/// Lets the text boxes of a section's screen tell what their printed boxes do with a text that doesn't fit.
void mdShowPrintNotes(const frmSection &screen);
