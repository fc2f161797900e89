#include "controls/mdIcons.h"
#include "controls/mdTheme.h"
#include "controls/oHeaderBar.h"

#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <QTextDocument>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

/// A window of a given size with a header at its top.
struct Window : QWidget {
    Window(int width, int height)
    {
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(header = new oHeaderBar(this));
        column->addStretch();
        resize(width, height);
    }
    oHeaderBar *header;
};

int differing(const QImage &one, const QImage &other, const QRect &within)
{
    int count = 0;
    for (int y = within.top(); y <= within.bottom(); ++y)
        for (int x = within.left(); x <= within.right(); ++x)
            count += one.pixel(x, y) != other.pixel(x, y);
    return count;
}

} // namespace

TEST(HeaderBar, StandsForASectionUntilItIsToldOtherwise)
{
    oHeaderBar header;
    EXPECT_EQ(12, header.IconGroup());
    EXPECT_EQ(QString(), header.Caption());
    header.setCaption(QStringLiteral("Counsel"));
    header.setSubCaption(QStringLiteral("Set up counsel"));
    header.setIconGroup(5);
    EXPECT_EQ(5, header.IconGroup());
    const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(&header);
    EXPECT_EQ(QStringLiteral("Counsel"), spoken->text(QAccessible::Name));
    EXPECT_EQ(QStringLiteral("Set up counsel"), spoken->text(QAccessible::Description));
}

TEST(HeaderBar, KeepsItsHeights)
{
    oHeaderBar header;
    header.setSubCaption(QStringLiteral("Enter details of the client"));
    EXPECT_EQ(63, header.sizeHint().height()) << "62 and the line below";
    header.setDocument(true);
    EXPECT_EQ(46, header.sizeHint().height());
}

TEST(HeaderBar, OnALowScreenTheSubCaptionStandsOnTheCaptionsLine)
{
    const QFont desktop = QApplication::font();
    const auto height = [] {
        Window window(780, 400);
        window.header->setCaption(QStringLiteral("Client Details"));
        window.header->setSubCaption(QStringLiteral("Enter details of the client"));
        window.show();
        return window.header->sizeHint().height();
    };
    // A low window on a high screen keeps its two lines.
    EXPECT_EQ(62 + 1, height());
    // With a font of twice the size the same screen has room for half as much.
    QFont large = desktop;
    large.setPointSizeF(2 * desktop.pointSizeF());
    QApplication::setFont(large);
    EXPECT_EQ(2 * 46, height());
    QApplication::setFont(desktop);
}

TEST(HeaderBar, ADocumentsPathIsWholeInTheTooltip)
{
    oHeaderBar header;
    header.setDocument(true);
    const QString path = QStringLiteral("/home/costs/Claims/2026/Hartwell disrepair LA-20417.zr3*");
    header.setCaption(path);
    EXPECT_EQ(path, header.toolTip());
    EXPECT_EQ(path, header.Caption());
    for (const char *odd : {"/home/a/<b>x</b>/c.zr3", "/home/Smith & Sons/&lt;b>.zr3", "/home/<i>/Smith & Sons.zr3"}) {
        header.setCaption(QString::fromUtf8(odd));
        QTextDocument shown; // as a tooltip shows it
        if (Qt::mightBeRichText(header.toolTip()))
            shown.setHtml(header.toolTip());
        else
            shown.setPlainText(header.toolTip());
        EXPECT_EQ(odd, shown.toPlainText().toStdString());
    }
}

TEST(HeaderBar, ALongFolderIsCutAndTheFileNameIsNot)
{
    Window window(500, 700);
    window.header->setDocument(true);
    window.header->setCaption(QStringLiteral("/a/Hartwell.zr3"));
    window.show();
    const auto inkAtTheEnd = [&] {
        // The last column with ink is the end of the file name.
        const QImage picture = window.header->grab().toImage();
        for (int x = picture.width() - 1; x > 0; --x)
            for (int y = 0; y < picture.height() - 1; ++y)
                if (picture.pixelColor(x, y).lightness() < 100)
                    return x;
        return 0;
    };
    EXPECT_GT(inkAtTheEnd(), 0);
    window.header->setCaption(QStringLiteral("/%1/Hartwell.zr3").arg(QString(200, u'm')));
    EXPECT_LT(inkAtTheEnd(), 500 - Theme::Space24 + 1);
    const QImage unmarked = window.header->grab().toImage();
    window.header->setCaption(QStringLiteral("/%1/Hartwell.zr3*").arg(QString(200, u'm')));
    EXPECT_GT(differing(unmarked, window.header->grab().toImage(), unmarked.rect()), 0) << "the mark can be seen";
}

TEST(HeaderBar, AChipStandsAtTheRight)
{
    Window window(600, 700);
    window.header->setDocument(true);
    window.header->setCaption(QStringLiteral("New ZR3 File"));
    window.show();
    const QImage without = window.header->grab().toImage();
    window.header->setChip(QStringLiteral("Claim1"));
    const QImage with = window.header->grab().toImage();
    EXPECT_EQ(0, differing(without, with, QRect(0, 0, 400, with.height())));
    EXPECT_GT(differing(without, with, QRect(400, 0, 200, with.height())), 0);
    EXPECT_EQ(QStringLiteral("Claim1"), window.header->Chip());
}

TEST(Icons, GroupsOfTheMessageBoxAreRoundAndColoured)
{
    // clang-format off
    const struct { int group; Glyph glyph; QColor colour; bool round; } expected[] = {
        {1, Glyph::Coins,       Theme::Purple, false},
        {2, Glyph::Exclamation, Theme::Red,    true},
        {3, Glyph::Information, Theme::Blue,   true},
        {4, Glyph::Question,    Theme::Purple, true},
        {5, Glyph::Person,      Theme::Purple, false},
    };
    // clang-format on
    for (const auto &row : expected) {
        const clsTile tile = mdTile(row.group, QStringLiteral("frmScheduleOfTime"));
        EXPECT_EQ(row.glyph, tile.glyph) << row.group;
        EXPECT_EQ(row.colour, tile.colour) << row.group;
        EXPECT_EQ(row.round, tile.round) << row.group;
    }
}

TEST(Icons, SectionsAreToldByTheirWindow)
{
    EXPECT_EQ(Glyph::Clock, mdTile(12, QStringLiteral("frmScheduleOfTime")).glyph);
    EXPECT_EQ(Glyph::Receipt, mdTile(12, QStringLiteral("frmDisbursements")).glyph);
    EXPECT_EQ(Glyph::People, mdTile(12, QStringLiteral("frmFeeEarnerGroups")).glyph);
    EXPECT_EQ(Glyph::Sliders, mdTile(12, QStringLiteral("frmFormSetup")).glyph);
    EXPECT_EQ(Glyph::Person, mdTile(12, QStringLiteral("frmClientDetails")).glyph);
    EXPECT_EQ(Glyph::Document, mdTile(12, QStringLiteral("frmUnheardOf")).glyph);
}

TEST(Icons, EveryGlyphDrawsSomethingOfItsOwn)
{
    std::vector<QImage> seen;
    for (int number = int(Glyph::None) + 1; number <= int(Glyph::RunsOn); ++number) {
        const QImage picture = mdGlyphIcon(Glyph(number), Theme::Ink).pixmap(QSize(20, 20), 1).toImage();
        bool inked = false;
        for (int y = 0; y < 20; ++y)
            for (int x = 0; x < 20; ++x)
                inked = inked || qAlpha(picture.pixel(x, y)) > 128;
        EXPECT_TRUE(inked) << "glyph " << number;
        for (const QImage &other : seen)
            EXPECT_NE(other, picture) << "glyph " << number;
        seen.push_back(picture);
    }
}

TEST(Icons, AreDrawnAtTheScreensOwnResolution)
{
    const QIcon icon = mdGlyphIcon(Glyph::Bin, Theme::Red);
    const QPixmap picture = icon.pixmap(QSize(16, 16), 2);
    EXPECT_EQ(QSize(32, 32), picture.size());
    EXPECT_EQ(2, picture.devicePixelRatio());
    EXPECT_NE(icon.pixmap(16, QIcon::Normal).toImage(), icon.pixmap(16, QIcon::Disabled).toImage());
}
