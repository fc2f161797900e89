#pragma once

#include "costing/tables/mdTableColumns.h"

#include <QHash>

struct clsImportedCell;

/// Reads cells like the boxes of the editors read typed text, and converts them to an item's stored values.
class clsCellReader {
public:
    explicit clsCellReader(const clsZR3Form &form);

    clsImportedCell read(clsCellKind kind, const QString &text) const;
    /// Reads a fee earner, enhancement or counsel that must exist, though its name may be empty.
    clsImportedCell readNamed(clsCellKind kind, const QString &text) const;
    /// The value of an item of the claim, normalised like that of a cell.
    static QString normalised(clsCellKind kind, const QString &stored);

private:
    QHash<QString, QString> m_feeEarners; ///< identities by reference
    QHash<QString, QString> m_enhancements; ///< and by name
    QHash<QString, QString> m_counsel;
};
