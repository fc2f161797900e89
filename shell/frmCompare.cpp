#include "shell/frmCompare.h"

#include "controls/mdTheme.h"
#include "controls/mdToolTip.h"
#include "controls/oButtonBar.h"
#include "controls/oCustomButton.h"
#include "controls/oHeaderBar.h"
#include "shell/mdComparison.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include <utility>

namespace {

enum clsColumn { Where, What, Before, After, Effect, Columns };

constexpr int Width = 1000;
constexpr int Height = 620;
constexpr int RowHeight = 28;
constexpr int Widths[Columns] = {220, 180, 220, 220, 100};

/// On one line, without line breaks.
QString inLine(const QString &text)
{
    return text.simplified();
}

QString itemInWords(const clsItemChange &item)
{
    constexpr const char *Done[] = {"added", "removed", "changed"};
    return QStringLiteral("%1, %2").arg(item.Name, QLatin1String(Done[item.Change]));
}

} // namespace

frmCompare::frmCompare(const clsComparison &comparison, QWidget *parent)
    : QDialog(parent)
    , m_table(new QTableWidget(0, Columns, this))
{
    setObjectName(QStringLiteral("frmCompare"));
    setWindowTitle(QStringLiteral("Compare"));
    auto *header = new oHeaderBar(this);
    header->setObjectName(QStringLiteral("oHeader"));
    header->setCaption(windowTitle());
    header->setSubCaption(QStringLiteral("What differs between two states of the claim"));

    m_table->setObjectName(QStringLiteral("tblChanges"));
    m_table->setAccessibleName(QStringLiteral("What differs"));
    m_table->setHorizontalHeaderLabels(
        {QStringLiteral("Where"), QStringLiteral("What"), comparison.before, comparison.now, QStringLiteral("Effect")});
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(Theme::scaled(RowHeight));
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (int column = 0; column < Columns; ++column)
        m_table->setColumnWidth(column, Theme::scaled(Widths[column]));
    m_table->horizontalHeader()->setSectionResizeMode(After, QHeaderView::Stretch);
    fill(comparison);

    auto *line = new QLabel(comparison.trouble, this);
    line->setObjectName(QStringLiteral("lblTrouble"));
    line->setTextFormat(Qt::PlainText);
    line->setWordWrap(true);
    if (comparison.changes.isEmpty() && comparison.trouble.isEmpty())
        line->setText(QStringLiteral("Nothing differs."));
    line->setVisible(!line->text().isEmpty());
    m_table->setVisible(!comparison.changes.isEmpty());
    m_table->setAccessibleDescription(line->text());

    auto *content = new QWidget(this);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(Theme::Space12);
    rows->addWidget(line);
    rows->addWidget(m_table, 1);
    if (comparison.changes.isEmpty())
        rows->addStretch(1);

    auto *close = new oCustomButton(this);
    close->setObjectName(QStringLiteral("cmdClose"));
    close->setCaption(QStringLiteral("&Close"));
    close->setLook(oCustomButton::Look::Default);
    connect(close, &oCustomButton::Click, this, &QDialog::accept);
    auto *bar = new oButtonBar(this);
    bar->AddButton(close);
    oButtonBar::layOut(*this, header, content, bar);
    // The table gets all the spare height.
    static_cast<QBoxLayout *>(layout()->itemAt(1)->layout())->setStretchFactor(content, 1);
    if (m_table->rowCount() > 0) {
        m_table->setCurrentCell(1, 0);
        m_table->setFocus();
    } else {
        close->setFocus();
    }
}

QSize frmCompare::sizeHint() const
{
    return {Theme::scaled(Width), m_table->rowCount() > 0 ? Theme::scaled(Height) : QDialog::sizeHint().height()};
}

void frmCompare::fill(const clsComparison &comparison)
{
    const clsClaimChanges &changes = comparison.changes;
    if (!changes.Fields.empty())
        addGroup(QStringLiteral("Fields"));
    for (const clsFieldChange &field : changes.Fields)
        addRow({field.Screen, field.Property, field.Old, field.New, {}});
    if (!changes.Items.empty())
        addGroup(QStringLiteral("Items"));
    for (const clsItemChange &item : changes.Items) {
        QString where = itemInWords(item);
        QString effect = item.Effect;
        for (const clsFieldChange &field : item.Fields)
            // An item's name and amount are in the first of its rows.
            addRow({std::exchange(where, {}), field.Property, field.Old, field.New, std::exchange(effect, {})});
        if (!where.isEmpty())
            addRow({where, {}, {}, {}, effect});
    }
    if (!changes.Totals.empty())
        addGroup(QStringLiteral("Totals"));
    for (const clsTotalChange &total : changes.Totals)
        addRow({{}, total.Key, total.Old, total.New, {}});
}

void frmCompare::addGroup(const QString &caption)
{
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    auto *cell = new QTableWidgetItem(caption);
    QFont semibold = Theme::font();
    semibold.setWeight(QFont::DemiBold);
    cell->setFont(semibold);
    cell->setForeground(Theme::Ink2);
    cell->setFlags(Qt::ItemIsEnabled);
    m_table->setItem(row, Where, cell);
    m_table->setSpan(row, Where, 1, Columns);
}

void frmCompare::addRow(const QStringList &cells)
{
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    for (int column = 0; column < Columns; ++column) {
        auto *cell = new QTableWidgetItem(inLine(cells[column]));
        cell->setToolTip(mdPlainToolTip(cells[column]));
        if (column == Effect)
            cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_table->setItem(row, column, cell);
    }
}
