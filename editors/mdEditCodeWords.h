#pragma once

class QWidget;
class clsCodeWords;

/// Lets the user edit the firm's words for the codes. True if they were saved.
bool mdEditCodeWords(QWidget *owner, const clsCodeWords &words);
