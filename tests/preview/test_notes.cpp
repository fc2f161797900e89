// The preview of the additional information.

#include "preview/mdExportPreviewAdditionalInformation.h"
#include "tests/preview/clsPreviewTest.h"

#include <QFile>
#include <QFontMetrics>
#include <QXmlStreamReader>

#include <map>

namespace {

using Alignment = clsGridAlignment;

class NotesPreview : public clsPreviewTest {
protected:
    static void draw()
    {
        makeLists();
        mdDrawPreview(clsPreviewKind::AdditionalInformation);
    }
    static Item addNote(const QString &text)
    {
        const Item item = addItem();
        item->Description = text;
        return item;
    }
};

/// Decodes an element's content: bytes of the code page; the samples use two characters beyond Latin 1.
QString decoded(QString encoded)
{
    const QByteArray bytes = QByteArray::fromPercentEncoding(encoded.replace(u'+', u' ').toLatin1());
    return QString::fromLatin1(bytes).replace(QChar(0x92), QChar(0x2019)).replace(QChar(0x96), QChar(0x2013));
}

/// The notes of a claim by their order, read from its file without the program's code.
std::map<int, QString> notesOf(const QString &path)
{
    std::map<int, QString> notes;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return notes;
    QXmlStreamReader reader(&file);
    bool inSchedule = false;
    int order = 0;
    QString text;
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        const QString name = reader.name().toString();
        if (name == QLatin1String("scheduleoftimeitems"))
            inSchedule = token == QXmlStreamReader::StartElement;
        if (!inSchedule)
            continue;
        if (token == QXmlStreamReader::StartElement && name == QLatin1String("orderid"))
            order = reader.readElementText().toInt();
        else if (token == QXmlStreamReader::StartElement && name == QLatin1String("description"))
            text = decoded(reader.readElementText());
        else if (token == QXmlStreamReader::EndElement && !text.isEmpty() && order > 0) {
            if (name == QLatin1String("scheduleoftimeitem")) {
                notes[order] = text;
                order = 0;
                text.clear();
            }
        }
    }
    return notes;
}

} // namespace

TEST_F(NotesPreview, WithoutNotesThereAreTwoColumnsAndNoRow)
{
    addItems(2);
    grid().resize(1030, 500);
    draw();
    EXPECT_EQ(0, grid().Rows());
    ASSERT_EQ(2, grid().Columns());
    EXPECT_EQ(100, grid().ColumnWidth(1));
    EXPECT_EQ(900, grid().ColumnWidth(2));
    EXPECT_EQ(1, user.progressCleared);
}

TEST_F(NotesPreview, ANoteStandsUnderTheNumberOfItsPlaceAndNotOfItsLine)
{
    Form->FormType = QStringLiteral("Claim1A");
    Form->ExcludeNonAdvocacy = true;
    addNote(QStringLiteral("left out"));
    addNote(QStringLiteral("kept"))->Advocacy = true;
    addItem()->Advocacy = true;
    user.progress.clear();
    draw();
    ASSERT_EQ(2, grid().Rows());
    EXPECT_EQ((QStringList {QString(), QString()}), rowTexts(1));
    EXPECT_EQ((QStringList {QStringLiteral("2"), QStringLiteral("kept")}), rowTexts(2));
    EXPECT_EQ(1, Form->ScheduleOfTimeItem(2)->SOTItemNumber);
    EXPECT_EQ(Alignment::Right, grid().Cell(2, 1).alignment);
    EXPECT_EQ(Alignment::LeftWrapped, grid().Cell(2, 2).alignment);
    EXPECT_TRUE(grid().Cell(2, 1).bold && grid().Cell(2, 2).bold);
    ASSERT_EQ(1u, user.progress.size());
    EXPECT_EQ(1, user.progress[0].value);
    EXPECT_EQ(1, user.progress[0].maximum);
    EXPECT_EQ(QStringLiteral("Drawing"), user.progress[0].text);
}

TEST_F(NotesPreview, ShowsEveryNoteOfASample)
{
    for (const char *name : {"housing-typical", "many-sheets", "odd-characters"}) {
        const QString path = mdSamplePath(QString::fromLatin1(name) + QStringLiteral(".zr3"));
        const auto expected = notesOf(path);
        ASSERT_GT(expected.size(), 2u) << name;
        Form = std::make_unique<clsZR3Form>();
        ASSERT_TRUE(Form->LoadXML(path));
        draw();
        ASSERT_EQ(int(2 * expected.size()), grid().Rows()) << name;
        int row = 0;
        for (const auto &[order, text] : expected) {
            row += 2;
            EXPECT_EQ((QStringList {QString::number(order), text}), rowTexts(row)) << name;
        }
    }
}

TEST_F(NotesPreview, ANoteOfManyLinesIsOneTallRow)
{
    addNote(QStringLiteral("one\r\ntwo\r\nthree\r\n\r\nfive"));
    addNote(QStringLiteral("short"));
    addNote(QStringLiteral("a word and another ").repeated(40));
    addNote(QString(2000, u'x')); // without a space
    draw();
    ASSERT_EQ(8, grid().Rows());
    const int line = QFontMetrics(grid().CellFont(true, false)).height();
    EXPECT_NEAR(5 * line + 5, grid().RowHeight(2), 5);
    EXPECT_EQ(line + 5, grid().RowHeight(4));
    EXPECT_GT(grid().RowHeight(6), 4 * line);
    EXPECT_EQ(0, (grid().RowHeight(6) - 5) % line);
    EXPECT_GT(grid().RowHeight(8), 8 * line);
    EXPECT_EQ(grid().RowHeight(6), grid().rowHeight(5));

    // The lines are drawn inside the row, down to its bottom edge.
    const QImage picture = grid().viewport()->grab().toImage();
    const int left = grid().ColumnWidth(1);
    const int foot = grid().rowViewportPosition(1) + grid().RowHeight(2);
    bool inked = false;
    for (int x = left; x < left + 60; ++x)
        for (int y = foot - 5 - line; y < foot; ++y)
            inked = inked || picture.pixelColor(x, y).lightness() < 160;
    EXPECT_TRUE(inked);
}

TEST_F(NotesPreview, ANarrowerGridMakesTallerNotes)
{
    addNote(QStringLiteral("a word and another ").repeated(20));
    draw();
    const int before = grid().RowHeight(2);
    grid().resize(400, 500);
    draw();
    EXPECT_GT(grid().RowHeight(2), 2 * before);
}

TEST_F(NotesPreview, ANoteTallerThanTheGridCanBeScrolledThrough)
{
    addNote(QStringLiteral("line\r\n").repeated(300));
    addNote(QStringLiteral("end"));
    draw();
    EXPECT_GT(grid().RowHeight(2), 3000);
    grid().BringIntoView(2, 1);
    EXPECT_EQ(0, grid().HiddenAbove(2)); // from its top
    EXPECT_EQ(2, grid().LastRowInView());
    grid().BringIntoView(4, 1);
    EXPECT_EQ(2, grid().FirstRowInView());
    EXPECT_EQ(4, grid().LastRowInView());
}

TEST_F(NotesPreview, ItsRoutinesSwitchPainting)
{
    addNote(QStringLiteral("x"));
    Form->RenderAdditionalInformationItems();
    mdExportPreviewAdditionalInformationInit();
    EXPECT_FALSE(grid().updatesEnabled());
    mdExportPreviewAdditionalInformationDraw(*Form);
    mdExportPreviewAdditionalInformationDeInit();
    EXPECT_TRUE(grid().updatesEnabled());
    EXPECT_EQ(0, grid().Rows()); // the export's list does not exist yet
}
