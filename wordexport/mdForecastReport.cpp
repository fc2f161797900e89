#include "wordexport/mdForecastReport.h"

#include "base/clsJsonWriter.h"

namespace {

using Box = clsForecast::Box;

const QString LineEnd = QStringLiteral("\r\n");

QString counted(int count, const QString &word)
{
    return QStringLiteral("%1 %2").arg(count).arg(count == 1 ? word : word + u's');
}

/// The name of a box for the user.
QString nameOf(const Box &box)
{
    if (box.Row == 0)
        return box.Property.isEmpty() ? box.Placeholder : box.Property;
    const QString place = QStringLiteral("row %1, column %2").arg(box.Row).arg(box.Column);
    return box.Property.isEmpty() ? place : QStringLiteral("%1 (%2)").arg(place, box.Property);
}

QString lineOf(const Box &box)
{
    QString line = QStringLiteral("%1  %2: %3")
                       .arg(box.Sheet.leftJustified(8), nameOf(box), counted(box.Lines, QStringLiteral("line")));
    if (box.PrintedSize != box.Size)
        line += QStringLiteral(", %1 points instead of %2").arg(box.PrintedSize).arg(box.Size);
    if (box.State != Box::Smaller)
        line += QStringLiteral(", ") + mdStateInWords(box.State);
    return line + LineEnd;
}

} // namespace

QString mdStateInWords(Box::clsState state)
{
    switch (state) {
    case Box::Smaller: return QStringLiteral("smaller");
    case Box::RunsOn: return QStringLiteral("runs on");
    case Box::Cut: break;
    }
    return QStringLiteral("cut");
}

QByteArray mdForecastAsJson(const clsForecast &forecast)
{
    clsJsonWriter json;
    json.beginObject();
    json.beginArray("Sheets");
    for (const clsForecast::Sheet &sheet : forecast.Sheets) {
        json.beginObject();
        json.number("Page", sheet.Page);
        json.text("Sheet", sheet.Name);
        json.text("Template", sheet.Template);
        json.number("PaperPages", sheet.PaperPages);
        json.endObject();
    }
    json.endArray();
    json.number("SheetCount", forecast.SheetCount());
    json.number("PaperPages", forecast.PaperPages());
    json.beginArray("Boxes");
    for (const Box &box : forecast.Boxes) {
        json.beginObject();
        json.text("Sheet", box.Sheet);
        json.text("Placeholder", box.Placeholder);
        json.text("Property", box.Property);
        json.number("Row", box.Row);
        json.number("Column", box.Column);
        json.decimal("Size", box.Size);
        json.decimal("PrintedSize", box.PrintedSize);
        json.number("Lines", box.Lines);
        json.text("State", mdStateInWords(box.State));
        json.endObject();
    }
    json.endArray();
    json.endObject();
    return json.bytes();
}

QString mdForecastAsTable(const clsForecast &forecast)
{
    QString table = QStringLiteral("Sheet     Pages  Template") + LineEnd;
    for (const clsForecast::Sheet &sheet : forecast.Sheets)
        table += QStringLiteral("%1  %2  %3")
                     .arg(sheet.Name.leftJustified(8))
                     .arg(sheet.PaperPages, 5)
                     .arg(sheet.Template)
            + LineEnd;
    table += counted(forecast.SheetCount(), QStringLiteral("sheet")) + QStringLiteral(", ")
        + counted(forecast.PaperPages(), QStringLiteral("paper page")) + LineEnd;
    if (!forecast.Boxes.empty())
        table += LineEnd + QStringLiteral("Not printed at its own size") + LineEnd;
    for (const Box &box : forecast.Boxes)
        table += lineOf(box);
    return table;
}
