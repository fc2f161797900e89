#pragma once

#include <QByteArray>
#include <QString>

struct clsFirm;

// The firm as a CSV table that can be edited in a spreadsheet: one row for the firm, then one for each group, fee
// earner and counsel, in the order of their lists.

QByteArray mdFirmAsCsv(const clsFirm &firm);

/// Reads a table into a firm without people. Values that the table leaves out are kept. Returns why the table can't be
/// read, as the end of a sentence, such as "in line 7: 'abc' is no amount"; empty on success.
QString mdReadFirmCsv(const QByteArray &bytes, clsFirm &firm);
