#pragma once

#include "wordexport/document/clsZipPackage.h"

#include <QHash>
#include <QString>

#include <optional>
#include <vector>

/// How a text that doesn't fit its box is printed.
struct clsPrintedFit {
    enum clsState { Smaller, RunsOn, Cut };

    clsState state;
    int lines; ///< at its own size
    int room; ///< lines that the box prints at that size
};

/// The boxes of a form type's pages in which single fields are printed, and how a text fits them. Lays the text out in
/// the template as the export does, without needing a claim.
class clsPrintedBoxes {
public:
    /// The boxes of the templates in the folder; none if the form type has no pages or the templates are unusable.
    clsPrintedBoxes(const QString &formType, const QString &templatesFolder);

    /// Whether a property such as "DebtorsDetails.Address" has a box.
    bool has(const QString &property) const { return m_boxes.contains(property); }
    /// How a text that doesn't fit the box of a property is printed, the worst case of several boxes; nothing if it
    /// fits.
    std::optional<clsPrintedFit> fit(const QString &property, const QString &text);

    /// The properties printed on a page's first sheet, by placeholder.
    QHash<QString, QString> properties(int page) const;

private:
    struct clsBox {
        QString templateName;
        QString placeholder;
        int page;
        int room = 0; ///< 0 until computed
    };

    std::optional<clsPrintedFit> fitInto(const clsBox &box, const QString &text) const;
    int roomOf(clsBox &box) const;

    QHash<QString, std::vector<clsBox>> m_boxes;
    QHash<QString, clsZipPackage> m_templates;
};
