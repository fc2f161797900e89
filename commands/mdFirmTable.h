#pragma once

#include <QByteArray>
#include <QString>

struct clsFirm;

// The firm as a table that a spreadsheet can show and change: one row for the firm, one for each group, fee earner and
// counsel, in the order of their lists.

QByteArray mdFirmAsCsv(const clsFirm &firm);

/// Reads a table into a firm that has nobody yet. What the table leaves out stays as it is. Returns why the table can't
/// be read, as the end of a sentence, such as "in line 7: 'abc' is no amount"; empty where it could.
QString mdReadFirmCsv(const QByteArray &bytes, clsFirm &firm);
