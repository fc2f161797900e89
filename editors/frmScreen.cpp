#include "editors/frmScreen.h"

#include "base/clsRunTimeError.h"
#include "base/mdLog.h"
#include "commands/mdFileHandling.h"
#include "controls/mdLeaveFocusedBox.h"
#include "controls/mdTheme.h"
#include "controls/oCheckBox.h"
#include "controls/oDecimalBox.h"
#include "controls/oHeaderBar.h"
#include "controls/oIntegerBox.h"
#include "controls/oTimeBox.h"
#include "controls/oTypedText.h"
#include "editors/clsListActions.h"
#include "editors/clsMnemonics.h"
#include "editors/mdBringBack.h"
#include "editors/mdCheckForBlanks.h"
#include "editors/mdConfirmCancelEdit.h"
#include "editors/mdExclusiveTicks.h"
#include "editors/mdFieldTexts.h"
#include "editors/mdPrintNotes.h"
#include "editors/mdScreenControls.h"
#include "editors/mdScreenLetters.h"
#include "editors/mdSectionRoutes.h"
#include "editors/mdUnloadAndDummyTabClick.h"
#include "editors/oListLine.h"
#include "editors/oScreenBar.h"
#include "editors/oScreenFrame.h"
#include "editors/oScreenPage.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "formdata/mdRunStep.h"
#include "formdata/mdSectionTabs.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QVBoxLayout>

#include <algorithm>
#include <map>

namespace {

struct clsWidth {
    clsScreenWidth width;
    int pixels;
};

// clang-format off
constexpr clsWidth Widths[] = {
    {clsScreenWidth::Edit,       640},
    {clsScreenWidth::OneColumn,  820},
    {clsScreenWidth::List,       1080},
    {clsScreenWidth::TwoColumns, 1100},
};
// clang-format on

/// The initial height of a list; other screens are as high as their content.
constexpr int ListHeight = 680;
constexpr int LowestWindow = 300;

int widthOf(clsScreenWidth width)
{
    for (const clsWidth &row : Widths)
        if (row.width == width)
            return Theme::scaled(row.pixels);
    return 0;
}

} // namespace

frmScreen::frmScreen(const clsScreen &screen, QWidget *parent)
    : QDialog(parent)
    , m_screen(screen)
    , m_header(new oHeaderBar(this))
    , m_menus(new QMenuBar(this))
    , m_page(new oScreenPage(this))
{
    setObjectName(QString::fromUtf8(screen.name));
    setWindowTitle(QString::fromUtf8(screen.header));
    m_header->setObjectName(QStringLiteral("oHeader"));
    m_header->setCaption(QString::fromUtf8(screen.header));
    m_header->setSubCaption(QString::fromUtf8(screen.subCaption));
    m_header->setIconGroup(screen.iconGroup);
    buildFrames();
    buildLine();
    m_bar = new oScreenBar(screen, this);
    connectBar();
    if (screen.fileMenu)
        buildFileMenu();
    if (!screen.jumps.empty())
        buildJumpMenu();
    m_menus->setVisible(!m_menus->actions().isEmpty());
    mdGiveLetters(*m_bar, m_fields, m_labels, m_page->frames());

    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->setMenuBar(m_menus);
    all->addWidget(m_header);
    all->addWidget(m_page, 1);
    if (m_line)
        all->addWidget(m_line);
    all->addWidget(m_bar);

    makeTicksExclusive();
    buildLists();
    buildUndo();
    mdShowPrintNotes(screen, m_fields);
    if (screen.rules)
        screen.rules(*this);
}

void frmScreen::buildFrames()
{
    for (const clsScreenFrame &table : m_screen.frames) {
        auto *frame = new oScreenFrame(table, m_page->content());
        m_page->addFrame(frame, table);
        m_fields.insert(m_fields.end(), frame->fields().begin(), frame->fields().end());
        m_labels.insert(m_labels.end(), frame->labels().begin(), frame->labels().end());
    }
    m_page->complete();
}

void frmScreen::buildFileMenu()
{
    QMenu *file = m_menus->addMenu(QStringLiteral("&File"));
    QAction *save = file->addAction(QStringLiteral("&Save"));
    save->setObjectName(QStringLiteral("mnuSave"));
    save->setShortcut(Qt::CTRL | Qt::Key_S);
    // Saves the claim without this screen's changes: only the screen's button stores them, and closes the screen.
    // Required behaviour; do not fix.
    connect(save, &QAction::triggered, this, [] { SaveForm(false); });
}

void frmScreen::buildJumpMenu()
{
    QMenu *jumpTo = m_menus->addMenu(QStringLiteral("&Jump To"));
    clsMnemonics letters;
    for (const clsScreenJump &jump : m_screen.jumps) {
        const QString section = QString::fromUtf8(jump.section);
        QAction *entry = jumpTo->addAction(letters.marked(section));
        entry->setObjectName(QString::fromUtf8(jump.menu));
        connect(entry, &QAction::triggered, this, [this, section, store = jump.menuStores] { JumpTo(section, store); });
    }
}

void frmScreen::connectBar()
{
    connect(m_bar, &oScreenBar::Prev, this, &frmScreen::Prev);
    connect(m_bar, &oScreenBar::Next, this, &frmScreen::Next);
    connect(m_bar, &oScreenBar::Walk, this, [this](bool behind) {
        leaveFor(mdSectionBeside(QString::fromUtf8(m_screen.section), Form->FormType(), behind));
    });
    connect(m_bar, &oScreenBar::Save, this, &frmScreen::Save);
    connect(m_bar, &oScreenBar::SaveAndAdd, this, &frmScreen::SaveAndAdd);
    connect(m_bar, &oScreenBar::Close, this, &frmScreen::Close);
    connect(m_bar, &oScreenBar::Jump, this, [this](const QString &section) { JumpTo(section, true); });
    connect(m_bar, &oScreenBar::Cancel, this, [this] {
        // A box with invalid text keeps the focus and blocks all buttons, including this one, but not Esc and the close
        // box. On a screen without this button Esc is Close, which stores and is blocked too, so that typed text isn't
        // lost.
        if (mdLeaveFocusedBox(this))
            Cancel();
    });
}

void frmScreen::makeTicksExclusive()
{
    std::map<QString, std::vector<oCheckBox *>> groups;
    for (const clsScreenField &field : m_fields) {
        auto *box = qobject_cast<oCheckBox *>(field.control);
        if (!box || field.row->flags & Independent)
            continue;
        const QString pair = mdPairOf(box->objectName());
        if (field.row->group)
            groups[QString(QLatin1Char(field.row->group))].push_back(box);
        else if (!pair.isEmpty())
            groups[pair].push_back(box);
    }
    for (const auto &[name, boxes] : groups)
        mdMakeExclusive(boxes);
}

void frmScreen::Initialise()
{
    Initialise(m_screen.record ? m_screen.record() : nullptr);
}

void frmScreen::Initialise(clsXMLRecord *item)
{
    WriteLog(objectName() + QStringLiteral(" Opened"));
    m_record = item;
    if (m_record) {
        for (const clsScreenField &field : m_fields)
            mdLoadControl(*field.row, *field.control, *m_record);
    } else if (m_screen.add) {
        startFiguresAtZero();
    }
    for (const clsList &list : m_lists)
        list.actions->draw();
    showCounts();
    // Drawing the lists renumbers their items; this change is added to the last undo step.
    if (m_undo)
        Document().history.join();
    emit Loaded();
    m_loadedTexts = mdFieldTexts(m_fields);
    // Unless the rules have set the focus.
    enterFirst(None);
}

/// If nothing has the focus, sets it to the first field that can take it and has none of the flags `passedOver`.
void frmScreen::enterFirst(unsigned passedOver)
{
    for (const clsScreenField &field : m_fields) {
        if (focusWidget())
            break;
        const bool offered = field.control->isEnabledTo(this) && field.control->isVisibleTo(this);
        if (offered && !(field.row->flags & passedOver)
            && (field.control->focusProxy() || field.control->focusPolicy()))
            field.control->setFocus(Qt::TabFocusReason);
    }
}

/// A number that the user hasn't visited would be stored as empty, and the item could not be priced.
void frmScreen::startFiguresAtZero()
{
    for (const clsScreenField &field : m_fields) {
        if (auto *amount = qobject_cast<oDecimalBox *>(field.control))
            amount->setText(QStringLiteral("0.00"));
        else if (auto *number = qobject_cast<oIntegerBox *>(field.control))
            number->setText(QStringLiteral("0"));
    }
}

void frmScreen::Store(clsStoring storing)
{
    if (!m_record && m_screen.add)
        m_record = m_screen.add();
    if (m_record)
        for (const clsScreenField &field : m_fields)
            if (storing == clsStoring::Closing || !(field.row->flags & AtCloseOnly))
                mdStoreControl(*field.row, *field.control, *m_record);
    emit Stored();
}

/// Item editors store within the step of their list, and the preferences are not part of the claim.
void frmScreen::storeAsStep(clsStoring storing)
{
    if (m_screen.fileMenu)
        RunStep(QString::fromUtf8(m_screen.section ? m_screen.section : m_screen.header), [&] { Store(storing); });
    else
        Store(storing);
}

bool frmScreen::checkRequired()
{
    QStringList texts;
    QWidget *firstEmpty = nullptr;
    for (const clsScreenField &field : m_fields) {
        if (!(field.row->flags & Required))
            continue;
        texts << mdTextOf(*field.control);
        if (texts.last().isEmpty() && !firstEmpty)
            firstEmpty = field.control;
    }
    if (mdCheckForBlanks(texts))
        return true;
    firstEmpty->setFocus(Qt::TabFocusReason);
    return false;
}

/// A box that the user hasn't visited may hold an invalid value from a file. An item's editor then stores nothing and
/// focuses the box. Valid text is stored unchanged, as is an amount that is empty until its box has had the focus; only
/// a time is reformatted.
bool frmScreen::checkTyped()
{
    if (!m_screen.itemWord)
        return true;
    const auto holds = [](const clsScreenField &field) {
        auto *typed = field.control->findChild<oTypedText *>();
        if (!typed || !typed->isEnabled())
            return false;
        return qobject_cast<oTimeBox *>(field.control) ? !typed->validate() : typed->refuses();
    };
    return std::none_of(m_fields.begin(), m_fields.end(), holds);
}

bool frmScreen::mayStore()
{
    return mdLeaveFocusedBox(this) && checkRequired() && checkTyped() && (!m_mayStore || m_mayStore());
}

void frmScreen::Save()
{
    if (!mayStore())
        return;
    storeAsStep(clsStoring::Closing);
    done(Accepted);
}

void frmScreen::Close()
{
    Save();
}

void frmScreen::Cancel()
{
    // Only item editors call the confirmation.
    if (m_screen.itemWord && !mdConfirmCancelEdit(QString::fromUtf8(m_screen.itemWord)))
        return;
    mdKeepNotStored(*this);
    done(Rejected);
}

void frmScreen::Prev()
{
    leaveFor(mdPrevSection(QString::fromUtf8(m_screen.section), Form->FormType()));
}

void frmScreen::Next()
{
    leaveFor(mdNextSection(QString::fromUtf8(m_screen.section), Form->FormType()));
}

/// Moving on always stores; only Cancel discards changes. For an unknown form type there is no target, and nothing
/// happens.
void frmScreen::leaveFor(const QString &section)
{
    if (!section.isEmpty())
        JumpTo(section, true);
}

void frmScreen::JumpTo(const QString &section, bool store)
{
    if (!mdLeaveFocusedBox(this))
        return;
    if (store)
        storeAsStep(clsStoring::MovingOn);
    else
        mdKeepNotStored(*this);
    mdUnloadAndDummyTabClick(*this, section);
}

QWidget &frmScreen::Box(const char *name) const
{
    for (const clsScreenField &field : m_fields)
        if (field.control->objectName() == QLatin1String(name))
            return *field.control;
    throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
}

void frmScreen::reject()
{
    if (m_screen.ending == clsScreenEnding::Close)
        Close();
    else
        Cancel();
}

void frmScreen::closeEvent(QCloseEvent *event)
{
    if (m_screen.ending == clsScreenEnding::SaveCancel) {
        Cancel();
    } else {
        // On a screen without Cancel this is the only way to discard typed text.
        mdKeepNotStored(*this);
        done(Rejected);
    }
    event->setAccepted(!isVisible());
}

QSize frmScreen::sizeHint() const
{
    const int width = qMax(widthOf(m_screen.width), minimumSizeHint().width());
    if (m_screen.width == clsScreenWidth::List || !m_lists.empty())
        return {width, Theme::scaled(ListHeight)};
    const int menus = m_menus->isHidden() ? 0 : m_menus->sizeHint().height();
    const int around = menus + m_header->sizeHint().height() + m_bar->sizeHint().height();
    return {width, around + m_page->heightFor(width)};
}

QSize frmScreen::minimumSizeHint() const
{
    return {qMax(m_page->minimumSizeHint().width(), m_bar->minimumSizeHint().width()), Theme::scaled(LowestWindow)};
}
