#pragma once

class QWidget;

/// Shows the firm as it is kept for new claims, and returns when it is closed. True when it was kept.
bool mdShowFirmAndTeam(QWidget *owner);
