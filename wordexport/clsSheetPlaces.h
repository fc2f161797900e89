#pragma once

#include <QHash>
#include <QRectF>
#include <QString>

#include <vector>

class clsMSWord;

/// Where the texts of a sheet are printed on the paper, in points from its corner. Taken from the templates; available
/// for the rows above the first one that is not of exact height, and only if the sheet takes one paper page.
class clsSheetPlaces {
public:
    explicit clsSheetPlaces(const QString &templatesFolder)
        : m_folder(templatesFolder)
    { }

    struct clsPlace {
        QRectF cell;
        QRectF row; ///< of the table that contains it
    };
    using clsPlaces = QHash<QString, clsPlace>;

    /// The cells of a template's placeholders.
    const clsPlaces &placeholders(const QString &templateName);
    /// The rows of a grid that starts `linesAbove` lines below the start of the sheet.
    std::vector<QRectF> rows(const QString &templateName, int linesAbove, int count) const;

private:
    bool open(clsMSWord &word, const QString &templateName) const;

    QString m_folder;
    QHash<QString, clsPlaces> m_placeholders;
};
