#pragma once

#include "wordexport/document/clsZipPackage.h"

#include <QHash>
#include <QString>

#include <optional>
#include <vector>

/// How a text is printed that does not fit its box as it is.
struct clsPrintedFit {
    enum clsState { Smaller, RunsOn, Cut };

    clsState state;
    int lines; ///< that it takes at its own size
    int room; ///< lines that the box prints at that size
};

/// The boxes of a form type's pages in which single fields are printed, and what becomes of a text in them. It lays the
/// text out in the template, as the export does, and knows no claim.
class clsPrintedBoxes {
public:
    /// Those of the templates in the folder; none where the form type has no pages or the templates can't be worked
    /// with.
    clsPrintedBoxes(const QString &formType, const QString &templatesFolder);

    /// Whether a property such as "DebtorsDetails.Address" has a box.
    bool has(const QString &property) const { return m_boxes.contains(property); }
    /// What is printed of a text that doesn't fit the box of a property, the worst of several boxes; nothing where it
    /// fits.
    std::optional<clsPrintedFit> fit(const QString &property, const QString &text);

    /// The properties that are printed on a page's own sheet, by their placeholders.
    QHash<QString, QString> properties(int page) const;

private:
    struct clsBox {
        QString templateName;
        QString placeholder;
        int page;
        int room = 0; ///< once it is known
    };

    std::optional<clsPrintedFit> fitInto(const clsBox &box, const QString &text) const;
    int roomOf(clsBox &box) const;

    QHash<QString, std::vector<clsBox>> m_boxes;
    QHash<QString, clsZipPackage> m_templates;
};
