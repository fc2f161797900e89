#pragma once

class QWidget;

/// Lets the user set or remove the open claim's costs limit. True if it was saved.
bool mdEditCostsLimit(QWidget *owner);
