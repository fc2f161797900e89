#pragma once

#include "costing/tables/mdTableColumns.h"

#include <QHash>

struct clsImportedCell;

/// Reads cells as the boxes of the editors read what is typed, into what an item stores.
class clsCellReader {
public:
    explicit clsCellReader(const clsZR3Form &form);

    clsImportedCell read(clsCellKind kind, const QString &text) const;
    /// A fee earner, an enhancement or a counsel that has to be there, though its name may be empty.
    clsImportedCell readNamed(clsCellKind kind, const QString &text) const;
    /// The value of an item of the claim, in the form in which a cell's would be.
    static QString normalised(clsCellKind kind, const QString &stored);

private:
    QHash<QString, QString> m_feeEarners; ///< identities by reference
    QHash<QString, QString> m_enhancements; ///< and by name
    QHash<QString, QString> m_counsel;
};
