#pragma once

class QWidget;

/// Lets the user set the open claim's limit of costs, or take it away, over a window. True when it was saved.
bool mdEditCostsLimit(QWidget *owner);
