#pragma once

#include <QHash>
#include <QRectF>
#include <QString>

#include <vector>

class clsMSWord;

/// Where on the paper the texts of a sheet are printed, in points from its corner. The templates tell; a place is known
/// as far down as the rows of its template are of exact height, and only while the sheet takes one paper page.
class clsSheetPlaces {
public:
    explicit clsSheetPlaces(const QString &templatesFolder)
        : m_folder(templatesFolder)
    { }

    struct clsPlace {
        QRectF cell;
        QRectF row; ///< of the table that it stands in
    };
    using clsPlaces = QHash<QString, clsPlace>;

    /// The cells of a template's placeholders.
    const clsPlaces &placeholders(const QString &templateName);
    /// The rows of a grid that begins so many lines below the start of the sheet.
    std::vector<QRectF> rows(const QString &templateName, int linesAbove, int count) const;

private:
    bool open(clsMSWord &word, const QString &templateName) const;

    QString m_folder;
    QHash<QString, clsPlaces> m_placeholders;
};
