#pragma once

class QWidget;

/// Shows the firm for new claims until the user closes it. True if it was saved.
bool mdShowFirmAndTeam(QWidget *owner);
