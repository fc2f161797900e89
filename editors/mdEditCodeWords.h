#pragma once

class QWidget;
class clsCodeWords;

/// Lets the user change the firm's words for the codes, over a window. True when they were saved.
bool mdEditCodeWords(QWidget *owner, const clsCodeWords &words);
