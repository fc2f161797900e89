#include "controls/mdTheme.h"
#include "controls/oInputFilter.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTableWidget>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QtTest/qtestspontaneevent.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

/// Two boxes in a shown window, the second with the focus.
template <typename Widget> struct Window : QWidget {
    Window()
    {
        auto *column = new QVBoxLayout(this);
        column->addWidget(box = new Widget(this));
        column->addWidget(other = new QLineEdit(this));
        show();
        activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
        other->setFocus();
    }
    QColor edge() const { return box->grab().toImage().pixelColor(0, box->height() / 2); }
    QColor innerEdge() const { return box->grab().toImage().pixelColor(1, box->height() / 2); }
    QColor back() const { return box->grab().toImage().pixelColor(4, box->height() / 2); }
    Widget *box;
    QLineEdit *other;
};

void turnWheel(QWidget &over, int steps)
{
    const QPointF place(5, 5);
    QWheelEvent event(place, over.mapToGlobal(place), QPoint(), QPoint(0, steps * 120), Qt::NoButton, Qt::NoModifier,
        Qt::NoScrollPhase, false);
    // Only events that seem to come from the desktop are passed on to the parents.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&over, &event);
}

} // namespace

template <typename Widget> class TextBoxes : public testing::Test { };
using BoxKinds = testing::Types<QLineEdit, QPlainTextEdit, QComboBox>;
TYPED_TEST_SUITE(TextBoxes, BoxKinds);

TYPED_TEST(TextBoxes, HaveAThinEdgeAndAThickPurpleOneWithTheFocus)
{
    Window<TypeParam> window;
    EXPECT_EQ(Theme::Edge, window.edge());
    EXPECT_EQ(Theme::Paper, window.innerEdge());
    const QSize before = window.box->size();
    window.box->setFocus();
    EXPECT_EQ(Theme::Purple, window.edge());
    EXPECT_EQ(Theme::Purple, window.innerEdge());
    EXPECT_EQ(before, window.box->size());
}

TYPED_TEST(TextBoxes, TurnPurpleUnderThePointer)
{
    Window<TypeParam> window;
    window.box->setAttribute(Qt::WA_UnderMouse);
    EXPECT_EQ(Theme::Purple, window.edge());
    EXPECT_EQ(Theme::Paper, window.innerEdge());
    window.box->setAttribute(Qt::WA_UnderMouse, false);
}

TYPED_TEST(TextBoxes, ArePaleWhileDisabled)
{
    Window<TypeParam> window;
    window.box->setEnabled(false);
    EXPECT_EQ(Theme::EdgeOff, window.edge());
    EXPECT_EQ(Theme::Canvas, window.back());
}

TYPED_TEST(TextBoxes, ArePinkWithARedEdgeWhileInvalid)
{
    Window<TypeParam> window;
    const QImage valid = window.box->grab().toImage();
    window.box->setProperty("invalid", true);
    EXPECT_EQ(Theme::Red, window.edge());
    EXPECT_EQ(Theme::Red, window.innerEdge());
    EXPECT_EQ(Theme::Pink, window.back());
    window.box->setFocus();
    EXPECT_EQ(Theme::Red, window.edge()) << "the focus does not hide it";
    window.other->setFocus();
    window.box->setProperty("invalid", false);
    EXPECT_EQ(valid, window.box->grab().toImage());
}

TEST(Style, AnInvalidLineEditBearsASignThatItsTextKeepsClearOf)
{
    Window<QLineEdit> window;
    window.box->setProperty("invalid", true);
    const QImage picture = window.box->grab().toImage();
    bool sign = false;
    for (int x = picture.width() - 24; x < picture.width() - 4; ++x)
        for (int y = 4; y < picture.height() - 4; ++y)
            sign = sign || picture.pixelColor(x, y).red() > picture.pixelColor(x, y).green() + 100;
    EXPECT_TRUE(sign);
    const QRect signsRoom(picture.width() - 24, 0, 24, picture.height());
    window.box->setText(QString(200, u'm'));
    const QImage full = window.box->grab().toImage();
    EXPECT_NE(picture, full);
    EXPECT_EQ(picture.copy(signsRoom), full.copy(signsRoom));
}

TEST(Style, BoxesOfOneLineAreThirtyHighAtTenPoints)
{
    const QLineEdit line;
    const QComboBox list;
    EXPECT_EQ(30, line.sizeHint().height());
    EXPECT_EQ(30, list.sizeHint().height());
}

TEST(Style, AListIsWideEnoughForItsTextAndChevron)
{
    QComboBox list;
    list.addItem(QStringLiteral("Claim1A Only"));
    list.resize(list.sizeHint());
    QStyleOptionComboBox option;
    option.initFrom(&list);
    const QRect text = list.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &list);
    EXPECT_GE(text.width(), list.fontMetrics().horizontalAdvance(QStringLiteral("Claim1A Only")) + 2);
}

TEST(Style, AWheelOverAListWithoutTheFocusScrollsThePage)
{
    QScrollArea page;
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    auto *list = new QComboBox;
    list->addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    list->setCurrentIndex(1);
    column->addWidget(list);
    content->setMinimumHeight(2000);
    page.setWidget(content);
    page.resize(300, 200);
    page.show();
    page.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
    page.setFocus();
    turnWheel(*list, -1);
    EXPECT_EQ(1, list->currentIndex());
    EXPECT_GT(page.verticalScrollBar()->value(), 0);
    EXPECT_FALSE(list->hasFocus());
    const int before = page.verticalScrollBar()->value();
    list->setFocus();
    turnWheel(*list, -1);
    EXPECT_EQ(2, list->currentIndex()) << "with the focus it turns";
    EXPECT_EQ(before, page.verticalScrollBar()->value());
}

TEST(Style, MnemonicsAreUnderlinedOnlyWhileAltIsHeld)
{
    Window<QLineEdit> window;
    QLabel label(QStringLiteral("&Surname:"), &window);
    label.setBuddy(window.box);
    label.resize(label.sizeHint());
    label.show();
    const QImage plain = label.grab().toImage();
    QTest::keyPress(window.other, Qt::Key_Alt);
    EXPECT_TRUE(oInputFilter::UnderlineMnemonics());
    EXPECT_NE(plain, label.grab().toImage());
    QTest::keyRelease(window.other, Qt::Key_Alt);
    EXPECT_EQ(plain, label.grab().toImage());
}

TEST(Style, MnemonicsOfTheMenuBarAreUnderlinedWithTheOthers)
{
    QMainWindow window;
    auto *box = new QLineEdit(&window);
    window.setCentralWidget(box);
    window.menuBar()->addMenu(QStringLiteral("&File"));
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    box->setFocus();
    // Without the tint of a selected entry.
    const auto ink = [&] {
        const QImage picture = window.menuBar()->grab().toImage();
        std::vector<bool> result;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                result.push_back(picture.pixelColor(x, y).lightness() < 128);
        return result;
    };
    const auto plain = ink();
    QTest::keyPress(box, Qt::Key_Alt);
    const auto held = ink();
    EXPECT_NE(plain, held);
    QTest::keyRelease(box, Qt::Key_Alt);
    ASSERT_TRUE(window.menuBar()->hasFocus()) << "the letter can be pressed alone";
    const auto chosen = ink();
    for (size_t i = 0; i < held.size(); ++i)
        if (held[i] && !plain[i]) {
            EXPECT_TRUE(chosen[i]) << "a dot of the line";
        }
    QTest::keyClick(window.menuBar(), Qt::Key_Escape);
    EXPECT_EQ(plain, ink());
}

TEST(Style, ACaptionStaysWhereItIsWhenItsLetterIsUnderlined)
{
    Window<QLineEdit> window;
    for (const char *caption : {"Form &Type:", "V&AT:", "&Type of Case:", "R&&D &Tax:"}) {
        for (const bool wrapped : {false, true}) {
            QLabel label(QString::fromUtf8(caption), &window);
            label.setBuddy(window.box);
            label.setWordWrap(wrapped);
            label.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            label.resize(wrapped ? 60 : 120, 50);
            label.show();
            const QImage plain = label.grab().toImage();
            QTest::keyPress(window.other, Qt::Key_Alt);
            const QImage marked = label.grab().toImage();
            QTest::keyRelease(window.other, Qt::Key_Alt);
            QRect changed;
            for (int y = 0; y < plain.height(); ++y)
                for (int x = 0; x < plain.width(); ++x)
                    if (plain.pixel(x, y) != marked.pixel(x, y))
                        changed |= QRect(x, y, 1, 1);
            // Only a line as long as the letter is wide.
            EXPECT_EQ(1, changed.height()) << caption << wrapped;
            EXPECT_GE(changed.width(), 5) << caption << wrapped;
            EXPECT_LE(changed.width(), 11) << caption << wrapped;
        }
    }
}

TEST(Style, TheLineLiesBelowItsLetter)
{
    Window<QLineEdit> window;
    QLabel label(QStringLiteral("iii &Wiii"), &window);
    label.setBuddy(window.box);
    label.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label.resize(120, 30);
    label.show();
    const QImage plain = label.grab().toImage();
    QTest::keyPress(window.other, Qt::Key_Alt);
    const QImage marked = label.grab().toImage();
    QTest::keyRelease(window.other, Qt::Key_Alt);
    const QFontMetrics metrics = label.fontMetrics();
    QRect changed;
    for (int y = 0; y < plain.height(); ++y)
        for (int x = 0; x < plain.width(); ++x)
            if (plain.pixel(x, y) != marked.pixel(x, y))
                changed |= QRect(x, y, 1, 1);
    const int behind = label.contentsRect().right() + 1 - metrics.horizontalAdvance(QStringLiteral("iii"));
    EXPECT_NEAR(behind, changed.right() + 1, 1);
    EXPECT_NEAR(metrics.horizontalAdvance(u'W'), changed.width(), 1);
    EXPECT_GT(changed.top(), label.height() / 2 + metrics.height() / 2 - metrics.descent() - 1);
}

TEST(Style, MnemonicsLoseTheirLineWhenTheProgramLosesTheKeyboard)
{
    Window<QLineEdit> window;
    QTest::keyPress(window.other, Qt::Key_Alt);
    QEvent gone(QEvent::ApplicationDeactivate);
    QApplication::sendEvent(qApp, &gone);
    EXPECT_FALSE(oInputFilter::UnderlineMnemonics());
    QTest::keyRelease(window.other, Qt::Key_Alt);
}

TEST(Style, MnemonicsLoseTheirLineWhereTheReleaseOfAltWentUnseen)
{
    Window<QLineEdit> window;
    const auto hold = [&window] {
        QTest::keyPress(window.other, Qt::Key_Alt);
        EXPECT_TRUE(oInputFilter::UnderlineMnemonics());
    };
    hold();
    QTest::keyClick(window.other, Qt::Key_X);
    EXPECT_FALSE(oInputFilter::UnderlineMnemonics()) << "a key without Alt";
    hold();
    QTest::mouseClick(window.other, Qt::LeftButton);
    EXPECT_FALSE(oInputFilter::UnderlineMnemonics()) << "a click";
    hold();
    QDialog opened;
    opened.setModal(true);
    opened.show();
    opened.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&opened));
    EXPECT_FALSE(oInputFilter::UnderlineMnemonics()) << "a window that opens";
    opened.close();
    QTest::keyRelease(window.other, Qt::Key_Alt);
}

TEST(Style, MnemonicsKeepTheirLineUnderAKeyWithAlt)
{
    Window<QLineEdit> window;
    QTest::keyPress(window.other, Qt::Key_Alt);
    QTest::sendKeyEvent(QTest::Press, window.other, Qt::Key_X, QStringLiteral("x"), Qt::AltModifier);
    EXPECT_TRUE(oInputFilter::UnderlineMnemonics());
    QTest::keyRelease(window.other, Qt::Key_Alt);
    EXPECT_FALSE(oInputFilter::UnderlineMnemonics());
}

TEST(Style, ALetterUnderAltChoosesNothingInAList)
{
    Window<QComboBox> window;
    window.box->addItems({QStringLiteral("Adams"), QStringLiteral("Brown")});
    window.box->setFocus();
    QTest::keyClick(window.box, Qt::Key_B, Qt::AltModifier);
    EXPECT_EQ(QStringLiteral("Adams"), window.box->currentText());
    QTest::keyClick(window.box, Qt::Key_B);
    EXPECT_EQ(QStringLiteral("Brown"), window.box->currentText());
    window.box->setEditable(true);
    QTest::keyClick(window.box, Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(QStringLiteral("Brown"), window.box->currentText());
}

TEST(Style, SelectedRowsCarryAPurpleBarAtTheirLeftOnly)
{
    QTableWidget table(2, 3);
    table.setShowGrid(false);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.verticalHeader()->hide();
    table.selectRow(1);
    table.resize(400, 200);
    table.show();
    const QImage picture = table.viewport()->grab().toImage();
    const int selected = table.rowViewportPosition(1) + table.rowHeight(1) / 2;
    const int other = table.rowViewportPosition(0) + table.rowHeight(0) / 2;
    for (int x = 0; x < 3; ++x)
        EXPECT_EQ(Theme::Purple, picture.pixelColor(x, selected)) << x;
    EXPECT_EQ(Theme::Selected, picture.pixelColor(3, selected));
    EXPECT_EQ(Theme::Selected, picture.pixelColor(table.columnViewportPosition(1), selected));
    EXPECT_EQ(Theme::Paper, picture.pixelColor(0, other));
}

TEST(Style, ScrollBarsAreTwelveWideWithoutArrows)
{
    QScrollBar bar(Qt::Vertical);
    bar.setRange(0, 100);
    bar.setPageStep(100);
    bar.resize(bar.sizeHint().width(), 200);
    EXPECT_EQ(12, bar.width());
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = Qt::Vertical;
    option.minimum = 0;
    option.maximum = 100;
    option.pageStep = 100;
    const auto part = [&](int value, QStyle::SubControl control) {
        option.sliderPosition = value;
        return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, control, &bar);
    };
    EXPECT_EQ(QRect(0, 0, 12, 100), part(0, QStyle::SC_ScrollBarSlider));
    EXPECT_EQ(QRect(0, 100, 12, 100), part(100, QStyle::SC_ScrollBarSlider));
    EXPECT_EQ(QRect(0, 50, 12, 100), part(50, QStyle::SC_ScrollBarSlider));
    EXPECT_EQ(QRect(0, 0, 12, 50), part(50, QStyle::SC_ScrollBarSubPage));
    EXPECT_EQ(QRect(0, 150, 12, 50), part(50, QStyle::SC_ScrollBarAddPage));
    EXPECT_TRUE(part(50, QStyle::SC_ScrollBarAddLine).isEmpty());
    option.maximum = 1000000000;
    EXPECT_EQ(32, part(0, QStyle::SC_ScrollBarSlider).height()) << "it can always be caught";
}

TEST(Style, NothingMovesByItself)
{
    const QStyle *style = QApplication::style();
    EXPECT_EQ(0, style->styleHint(QStyle::SH_Widget_Animation_Duration));
    EXPECT_EQ(0, style->styleHint(QStyle::SH_EtchDisabledText));
    EXPECT_EQ(Qt::AlignRight, style->styleHint(QStyle::SH_FormLayoutLabelAlignment) & Qt::AlignHorizontal_Mask);
}
