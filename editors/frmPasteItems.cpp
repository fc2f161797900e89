#include "editors/frmPasteItems.h"

#include "base/clsRunTimeError.h"
#include "base/mdFormatMoney.h"
#include "base/mdLog.h"
#include "base/mdTimeFormatting.h"
#include "controls/mdLargestWindow.h"
#include "controls/mdSigns.h"
#include "controls/mdTheme.h"
#include "controls/oButtonBar.h"
#include "controls/oCheckBox.h"
#include "controls/oCustomButton.h"
#include "controls/oFrame.h"
#include "controls/oHeaderBar.h"
#include "editors/clsPasteList.h"
#include "editors/clsPasteModel.h"
#include "editors/mdColumnProfiles.h"
#include "editors/oPasteGrid.h"
#include "editors/oPasteHeader.h"
#include "formdata/mdGlobals.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

#include <climits>

namespace {

constexpr int Width = 1160;
constexpr int Height = 690;
constexpr int SignSide = 14;

QString counted(int count, const char *one)
{
    return QStringLiteral("%1 %2%3").arg(count).arg(QLatin1String(one), count == 1 ? QString() : QStringLiteral("s"));
}

QLabel *label(const char *name, const QColor &colour, bool isSemibold = false)
{
    auto *result = new QLabel;
    result->setObjectName(QString::fromLatin1(name));
    result->setFont(Theme::font(isSemibold ? 0 : -1, isSemibold));
    result->setTextFormat(Qt::PlainText);
    QPalette palette = result->palette();
    palette.setColor(QPalette::WindowText, colour);
    result->setPalette(palette);
    return result;
}

clsImportedRows read(const clsPasteList &list, const QString &text)
{
    clsImportedRows rows(*Form, list.import(), text);
    rows.guessMeanings(*Form, text);
    mdUseColumnProfile(rows, *Form, list);
    return rows;
}

/// The header line above the columns, shortened to fit.
QString headingLine(const QStringList &header)
{
    constexpr qsizetype Longest = 90;
    const QString line = header.join(QStringLiteral("; ")).simplified();
    return line.size() > Longest ? line.left(Longest) + u'\u2026' : line;
}

} // namespace

frmPasteItems::frmPasteItems(const clsPasteList &list, const QString &text, const clsSource &source, QWidget *parent)
    : QDialog(parent)
    , m_list(list)
    , m_model(new clsPasteModel(read(list, text), list.import(), this))
    , m_grid(new oPasteGrid(*m_model, this))
    , m_header(new oHeaderBar(this))
{
    setObjectName(QStringLiteral("frmPasteItems"));
    setWindowTitle(source.title);
    WriteLog(objectName() + QStringLiteral(" Opened"));
    m_header->setObjectName(QStringLiteral("oHeader"));
    m_header->setCaption(source.title);
    m_header->setSubCaption(
        QStringLiteral("%1 from %2, as they will be stored in %3")
            .arg(counted(m_model->rowCount(), "row"), source.from, QString::fromLatin1(list.section)));
    m_grid->setEmptyText(text.trimmed().isEmpty() ? source.empty : Rows().error());

    const QStringList &header = Rows().header();
    auto *frame = makeRows(!header.join(QString()).trimmed().isEmpty());
    auto *middle = new QVBoxLayout;
    middle->setContentsMargins(Theme::Space24, Theme::Space16, Theme::Space24, Theme::Space16);
    middle->addWidget(frame);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(m_header);
    all->addLayout(middle, 1);
    all->addWidget(makeBar());

    connect(m_model, &clsPasteModel::Changed, this, &frmPasteItems::showState);
    connect(chkLeaveDoublesOut, &oCheckBox::Click, this, [this](bool checked) { m_model->TickDoubles(!checked); });
    for (const int direction : {1, -1}) {
        auto *key = new QShortcut(Qt::CTRL | (direction > 0 ? Qt::Key_Down : Qt::Key_Up), this);
        connect(key, &QShortcut::activated, this, [this, direction] { m_grid->GoToWrong(direction); });
    }
    makeTabOrder();
    showState();
    focusFirst();
}

const clsImportedRows &frmPasteItems::Rows() const
{
    return m_model->Rows();
}

QWidget *frmPasteItems::makeRows(bool isKnownByHeader)
{
    auto *frame = new oFrame(this);
    frame->setObjectName(QStringLiteral("bxRows"));
    frame->setCaption(QStringLiteral("Rows"));
    frame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    auto *how = label("lblHow", Theme::Ink2);
    if (m_model->rowCount() > 0)
        how->setText(isKnownByHeader
                ? QStringLiteral("Columns found by their heading line: \"%1\"").arg(headingLine(Rows().header()))
                : QStringLiteral("Columns found by what stands in them"));
    how->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    chkLeaveDoublesOut = new oCheckBox;
    chkLeaveDoublesOut->setObjectName(QStringLiteral("chkLeaveDoublesOut"));
    chkLeaveDoublesOut->setCaption(QStringLiteral("Leave doubles out"));
    chkLeaveDoublesOut->setChecked(true);
    auto *caption = label("lblLeaveDoublesOut", Theme::Ink);
    caption->setText(QStringLiteral("&Leave doubles out"));
    caption->setBuddy(chkLeaveDoublesOut);
    auto *line = new QHBoxLayout;
    line->setSpacing(Theme::Space8);
    line->addWidget(how, 1);
    line->addWidget(chkLeaveDoublesOut);
    line->addWidget(caption);
    // Letters and calls have no items that a row could equal.
    const bool hasDoubles = *m_list.import().items != 0;
    chkLeaveDoublesOut->setVisible(hasDoubles);
    caption->setVisible(hasDoubles);
    frame->bodyLayout()->setSpacing(Theme::Space8);
    frame->bodyLayout()->addLayout(line);
    frame->bodyLayout()->addWidget(m_grid, 1);
    frame->bodyLayout()->addWidget(makeStatus());
    return frame;
}

QWidget *frmPasteItems::makeStatus()
{
    auto *status = new QWidget;
    auto *line = new QHBoxLayout(status);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(Theme::Space8);
    lblSign = new QLabel;
    lblSign->setPixmap(mdSignPixmap(Sign::Error, Theme::scaled(SignSide), devicePixelRatioF()));
    lblWrong = label("lblWrong", Theme::Ink, true);
    lblWhatToDo = label("lblWhatToDo", Theme::Ink2);
    lblWhatToDo->setText(QStringLiteral("Correct the cell, change the column's heading, or untick the row."));
    lblWhatToDo->setMinimumWidth(1);
    lblWhatToDo->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lblCounts = label("lblCounts", Theme::Ink2);
    lblTotal = label("lblTotal", Theme::Ink, true);
    lblInAll = label("lblInAll", Theme::Ink2);
    lblInAll->setText(QStringLiteral("in all"));
    line->addWidget(lblSign);
    line->addWidget(lblWrong);
    line->addWidget(lblWhatToDo, 1);
    line->addWidget(lblCounts);
    line->addSpacing(Theme::Space12);
    line->addWidget(lblTotal);
    line->addWidget(lblInAll);
    return status;
}

QWidget *frmPasteItems::makeBar()
{
    auto *bar = new oButtonBar(this);
    const auto button = [this](const char *name, const QString &caption) {
        auto *result = new oCustomButton(this);
        result->setObjectName(QString::fromLatin1(name));
        result->setCaption(caption);
        return result;
    };
    cmdNextWrong = button("cmdNextWrong", QStringLiteral("&Next Wrong Row"));
    connect(cmdNextWrong, &oCustomButton::Click, this, [this] {
        // After the last one, continues with the first.
        if (!m_grid->GoToWrong(1)) {
            m_grid->setCurrentIndex({});
            m_grid->GoToWrong(1);
        }
    });
    auto *keys = label("lblKeys", Theme::Ink2);
    keys->setText(QStringLiteral("Ctrl+Down"));
    cmdAdd = button("cmdAdd", QString());
    cmdAdd->setLook(oCustomButton::Look::Default);
    connect(cmdAdd, &oCustomButton::Click, this, &QDialog::accept);
    cmdCancel = button("cmdCancel", QStringLiteral("&Cancel"));
    connect(cmdCancel, &oCustomButton::Click, this, &QDialog::reject);
    bar->AddLeft(cmdNextWrong);
    bar->AddLeft(keys);
    bar->AddButton(cmdAdd);
    bar->AddButton(cmdCancel);
    return bar;
}

void frmPasteItems::makeTabOrder()
{
    QWidget *before = nullptr;
    const auto next = [&before](QWidget *widget) {
        if (before)
            setTabOrder(before, widget);
        before = widget;
    };
    for (QComboBox *list : m_grid->Headings().Lists())
        next(list);
    for (QWidget *widget :
        std::initializer_list<QWidget *> {m_grid, chkLeaveDoublesOut, cmdNextWrong, cmdAdd, cmdCancel})
        next(widget);
}

/// Focuses the first wrong cell, otherwise the button that adds the rows if it is enabled.
void frmPasteItems::focusFirst()
{
    if (m_grid->GoToWrong(1))
        return;
    if (cmdAdd->isEnabled())
        cmdAdd->setFocus(Qt::OtherFocusReason);
    else if (!m_grid->Headings().Lists().empty())
        m_grid->Headings().Lists().front()->setFocus(Qt::OtherFocusReason);
    else
        cmdCancel->setFocus(Qt::OtherFocusReason);
}

void frmPasteItems::showWrong(int wrong)
{
    const bool cantBeRead = !Rows().error().isEmpty() && m_model->rowCount() > 0;
    lblSign->setVisible(wrong > 0 || cantBeRead);
    lblWrong->setVisible(wrong > 0 || cantBeRead);
    lblWrong->setText(cantBeRead
            ? Rows().error() + u'.'
            : counted(wrong, "row") + (wrong == 1 ? QStringLiteral(" is wrong.") : QStringLiteral(" are wrong.")));
    lblWhatToDo->setText(wrong > 0 || cantBeRead ? cantBeRead
                ? QStringLiteral("Choose in a heading which column it is.")
                : QStringLiteral("Correct the cell, change the column's heading, or untick the row.")
                                                 : QString());
    cmdNextWrong->setEnabled(wrong > 0);
}

void frmPasteItems::showState()
{
    const int wrong = m_model->WrongRows();
    const int chosen = Rows().chosen();
    const int doubles = m_model->DoublesLeftOut();
    showWrong(wrong);
    QString counts = QStringLiteral("%1: %2 chosen").arg(counted(m_model->rowCount(), "row")).arg(chosen);
    if (doubles > 0)
        counts += QStringLiteral(", %1 left out").arg(counted(doubles, "double"));
    lblCounts->setText(m_model->rowCount() > 0 ? counts : QString());
    const QString total = totalOfChosen();
    lblTotal->setText(total);
    lblInAll->setVisible(!total.isEmpty());
    cmdAdd->setCaption(QStringLiteral("&Add ") + counted(chosen, "item"));
    cmdAdd->setEnabled(wrong == 0 && chosen > 0);
    QString whyOff;
    if (wrong > 0)
        whyOff = wrong == 1 ? QStringLiteral("A ticked row is wrong: correct or untick it")
                            : QStringLiteral("%1 ticked rows are wrong: correct or untick them").arg(wrong);
    else if (chosen == 0)
        whyOff = QStringLiteral("No row is ticked");
    cmdAdd->setToolTip(whyOff);
    cmdAdd->setAccessibleDescription(whyOff);
}

/// Empty for a list without a sum, and if the sum would overflow.
QString frmPasteItems::totalOfChosen() const
{
    if (!m_list.total || Rows().chosen() == 0)
        return {};
    const auto column = size_t(mdColumnOf(m_list.import().columns, QString::fromLatin1(m_list.total)));
    const bool isTime = m_list.import().columns[column].kind == clsCellKind::Time;
    qint64 minutes = 0;
    Money amount;
    try {
        for (const clsImportedRow &row : Rows().rows()) {
            const QString &value = row.Cells[column].Value;
            if (!row.IsChosen || value.isEmpty())
                continue;
            if (isTime)
                minutes += TimeToMinutes(value);
            else
                amount += MoneyFromText(value);
        }
    } catch (const clsRunTimeError &) {
        return {};
    }
    if (minutes > INT_MAX)
        return {};
    return isTime ? MinutesToTime(int(minutes)) : mdFormatMoney(amount);
}

QSize frmPasteItems::sizeHint() const
{
    const QSize wanted(Theme::scaled(Width), Theme::scaled(Height));
    return screen() ? wanted.boundedTo(mdLargestWindow(*screen())) : wanted;
}
