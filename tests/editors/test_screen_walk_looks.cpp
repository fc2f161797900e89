#include "controls/mdCaption.h"
#include "controls/mdTheme.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oCheckBox.h"
#include "tests/editors/clsScreenWalk.h"

#include <QPlainTextEdit>
#include <QScrollBar>

#include <map>
#include <set>

// The look of every screen: nothing is cut off, and everything is in its place.

namespace {

/// The visible fields, labels and buttons of a screen.
std::vector<QWidget *> partsOf(const frmScreen &screen, const std::vector<clsScreenField> &fields)
{
    std::vector<QWidget *> result;
    for (const clsScreenField &field : fields) {
        // An empty note takes no space.
        if (qobject_cast<QLabel *>(field.control) && field.control->isHidden())
            continue;
        result.push_back(field.control);
        if (field.label)
            result.push_back(field.label);
    }
    for (QWidget *part : screen.findChildren<QWidget *>())
        if (qobject_cast<oFieldLabel *>(part) && part->isVisible())
            result.push_back(part);
    for (oCustomButton *button : screen.findChildren<oCustomButton *>())
        if (button->isVisible())
            result.push_back(button);
    return result;
}

std::string nameOf(const QWidget &part)
{
    const auto *label = qobject_cast<const QLabel *>(&part);
    return part.objectName().toStdString() + (label ? " " + label->text().toStdString() : "");
}

void expectNotCut(const QWidget &part)
{
    const std::string name = nameOf(part);
    EXPECT_TRUE(part.isVisible()) << name;
    const QRect own(part.mapTo(part.parentWidget(), QPoint()), part.size());
    EXPECT_TRUE(part.parentWidget()->rect().contains(own)) << name;
    EXPECT_GE(part.width(), part.minimumSizeHint().width()) << name;
    const auto *label = qobject_cast<const QLabel *>(&part);
    const bool wraps = label && label->wordWrap();
    EXPECT_GE(part.height(), wraps ? label->heightForWidth(label->width()) : part.minimumSizeHint().height()) << name;
    if (label && !wraps) {
        EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(mdPlainCaption(label->text()))) << name;
    }
}

void expectNoOverlap(const QWidget &one, const QWidget &other)
{
    // Ticks and buttons have room for their focus ring around them, which may overlap their neighbour.
    const bool ring = qobject_cast<const oCheckBox *>(&one) || qobject_cast<const oCheckBox *>(&other);
    if (&one == &other || ring || one.parentWidget() != other.parentWidget() || qobject_cast<const QPushButton *>(&one))
        return;
    EXPECT_FALSE(one.geometry().intersects(other.geometry())) << nameOf(one) << " and " << nameOf(other);
}

/// The column of each field in its frame.
std::map<const clsScreenRow *, int> columnsOf(const clsScreen &screen)
{
    std::map<const clsScreenRow *, int> columns;
    int column = 0;
    for (const clsScreenFrame &frame : screen.frames) {
        for (const clsScreenRow &row : frame.rows) {
            if (row.kind == clsRowKind::ColumnBreak || row.kind == clsRowKind::ColumnsEnd)
                ++column;
            columns[&row] = column;
        }
        column = 0;
    }
    return columns;
}

/// The control itself, or its leftmost part.
QWidget *firstPart(QWidget &control)
{
    if (!control.focusProxy())
        return &control;
    QWidget *part = control.childAt(Theme::RingRoom, control.height() / 2);
    return part ? part : &control;
}

class clsLook {
public:
    explicit clsLook(frmScreen &screen)
        : m_screen(screen)
    { }
    void resize(QSize size)
    {
        m_screen.resize(size);
        QTest::qWait(20);
        ASSERT_EQ(size, m_screen.size());
    }
    void expectNothingCut(const std::vector<clsScreenField> &fields) const
    {
        const QScrollArea &page = *m_screen.findChild<QScrollArea *>();
        EXPECT_EQ(0, page.horizontalScrollBar()->maximum());
        EXPECT_LE(page.widget()->width(), page.viewport()->width());
        const auto all = partsOf(m_screen, fields);
        for (const QWidget *one : all) {
            expectNotCut(*one);
            for (const QWidget *other : all)
                expectNoOverlap(*one, *other);
        }
    }

private:
    frmScreen &m_screen;
};

} // namespace

TEST_P(EveryScreen, NothingIsCutOnASmallScreen)
{
    clsLook look(*screen);
    look.resize({960, 540});
    onEachPage([&] {
        QTest::qWait(20);
        look.expectNothingCut(openFields());
    });
}

TEST_P(EveryScreen, NothingIsCutOnALaptop)
{
    clsLook look(*screen);
    look.resize({1366, 768});
    onEachPage([&] {
        QTest::qWait(20);
        look.expectNothingCut(openFields());
    });
}

TEST_P(EveryScreen, NothingIsCutAtItsOwnSize)
{
    clsLook look(*screen);
    look.resize(screen->sizeHint());
    onEachPage([&] {
        QTest::qWait(20);
        look.expectNothingCut(openFields());
        // Nothing needs scrolling.
        EXPECT_EQ(0, page().verticalScrollBar()->maximum());
    });
}

TEST_P(EveryScreen, NothingIsCutInALargeFont)
{
    screen.reset();
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSize(16);
    QApplication::setFont(large);
    openAgain();
    clsLook look(*screen);
    for (const QSize size : {QSize(1366, 768), QSize(960, 540)}) {
        look.resize(size);
        onEachPage([&] {
            QTest::qWait(20);
            look.expectNothingCut(openFields());
        });
    }
    screen.reset();
    QApplication::setFont(before);
}

TEST_P(EveryScreen, ABoxOfSeveralLinesShowsAllThatItsPrintedBoxHolds)
{
    for (const clsScreenField &field : screen->Fields()) {
        auto *box = qobject_cast<oAllPurposeBox *>(field.control);
        if (!box || !box->MultiLine() || box->CharacterAllowance() == 0)
            continue;
        openPageOf(field);
        const QString words = QStringLiteral("Evidence was heard on the first day and again on the last. ");
        box->setText(words.repeated(20).left(box->CharacterAllowance()));
        QTest::qWait(20);
        const auto *text = box->findChild<QPlainTextEdit *>();
        EXPECT_EQ(0, text->verticalScrollBar()->maximum()) << nameOf(field);
    }
}

TEST_P(EveryScreen, TheBoxesOfAColumnBeginAtOneEdge)
{
    const auto columns = columnsOf(screen->Screen());
    for (const QSize size : {screen->sizeHint(), QSize(1366, 768), QSize(960, 540)}) {
        clsLook(*screen).resize(size);
        onEachPage([&] {
            std::map<std::pair<int, int>, std::set<int>> edges;
            for (const clsScreenField &field : openFields()) {
                if (!field.label || field.label->place() != oFieldLabel::Place::Beside || field.row->flags & SameRow
                    || field.row->beside)
                    continue;
                const int frame = field.control->parentWidget()->mapTo(screen.get(), QPoint()).x();
                const auto column = columns.find(field.row);
                // A tick's visible edge is inside the room for its ring, even if it has further parts.
                const int ring = qobject_cast<oCheckBox *>(firstPart(*field.control)) ? Theme::RingRoom : 0;
                edges[{frame, column == columns.end() ? 0 : column->second}].insert(
                    field.control->mapTo(screen.get(), QPoint()).x() + ring);
            }
            for (const auto &[column, ofColumn] : edges)
                EXPECT_EQ(1u, ofColumn.size()) << column.first << " at " << size.width();
        });
    }
}

TEST_P(EveryScreen, ACaptionWiderThanTheColumnOfLabelsStandsOverItsFieldAtTheLeft)
{
    onEachPage([this] {
        QTest::qWait(20);
        for (const clsScreenField &field : openFields()) {
            if (!field.label || field.label->place() == oFieldLabel::Place::Answer
                || qobject_cast<oCheckBox *>(field.control))
                continue;
            const std::string name = nameOf(field);
            const QRect label(field.label->mapTo(screen.get(), QPoint()), field.label->size());
            const QRect box(field.control->mapTo(screen.get(), QPoint()), field.control->size());
            const int caption = field.label->fontMetrics().horizontalAdvance(field.label->Caption());
            if (caption > Theme::scaled(300) || field.row->flags & CaptionAbove) {
                // A box that begins with a tick has the room for its ring on its left.
                const int ring = field.control->property("ringRoom").toBool() ? Theme::RingRoom : 0;
                EXPECT_LT(label.bottom(), box.top() + ring) << name;
                EXPECT_EQ(label.left(), box.left() + ring) << name;
                EXPECT_TRUE(field.label->alignment() & Qt::AlignLeft) << name;
            } else if (caption < Theme::scaled(290)) {
                EXPECT_LT(label.right(), box.left()) << name;
                EXPECT_FALSE(field.label->wordWrap()) << name;
            }
        }
    });
}

TEST_P(EveryScreen, HasACloseBoxAndNoOtherButtonsInItsTitle)
{
    const Qt::WindowFlags flags = screen->windowFlags();
    EXPECT_TRUE(flags & Qt::WindowCloseButtonHint);
    EXPECT_FALSE(flags & Qt::WindowMinMaxButtonsHint);
}

TEST_P(EveryScreen, WhateverHasTheFocusIsInViewWithSomeRoomAroundIt)
{
    screen->resize(960, 400);
    QTest::qWait(20);
    for (const clsScreenField &field : screen->Fields()) {
        if (!onOpenPage(field)) {
            openPageOf(field);
            QTest::qWait(20);
        }
        if (!canEnter(field))
            continue;
        // The first field already had the focus when the window was made this low.
        screen->focusWidget()->clearFocus();
        field.control->setFocus(Qt::TabFocusReason);
        // In a control of several parts, the one that has the focus.
        const QWidget &part = *screen->focusWidget();
        const QRect place(part.mapTo(page().viewport(), QPoint()), part.size());
        const int first = part.mapTo(&content(), QPoint()).y();
        EXPECT_GE(place.top(), qMin(24, first)) << nameOf(field);
        if (place.height() + 48 <= page().viewport()->height()) {
            EXPECT_LE(place.bottom(), page().viewport()->height() - 16) << nameOf(field);
        }
    }
}
