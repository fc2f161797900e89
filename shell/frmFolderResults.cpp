#include "shell/frmFolderResults.h"

#include "controls/mdGridMetrics.h"
#include "controls/mdTheme.h"
#include "controls/mdToolTip.h"
#include "controls/oButtonBar.h"
#include "controls/oCustomButton.h"
#include "controls/oHeaderBar.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

constexpr int ResultsWidth = 1000;
constexpr int ResultsHeight = 560;
constexpr int ColumnWidth = 190;

oCustomButton *buttonOf(const char *name, const QString &caption, QWidget *parent)
{
    auto *button = new oCustomButton(parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setCaption(caption);
    return button;
}

} // namespace

frmFolderResults::frmFolderResults(const clsFolderResults &results, QWidget *parent)
    : QDialog(parent)
    , m_results(results)
    , m_table(new QTableWidget(int(results.rows.size()), int(results.headings.size()), this))
{
    setObjectName(QStringLiteral("frmFolderResults"));
    setWindowTitle(results.caption);
    auto *header = new oHeaderBar(this);
    header->setObjectName(QStringLiteral("oHeader"));
    header->setCaption(results.caption);
    header->setSubCaption(results.subCaption);
    fill();
    auto *bar = new oButtonBar(this);
    if (m_results.open) {
        auto *open = buttonOf("cmdShow", m_results.openCaption, this);
        open->setEnabled(m_table->rowCount() > 0);
        connect(open, &oCustomButton::Click, this, &frmFolderResults::openRow);
        bar->AddLeft(open);
    }
    auto *close = buttonOf("cmdClose", QStringLiteral("&Close"), this);
    close->setLook(oCustomButton::Look::Default);
    connect(close, &oCustomButton::Click, this, &QDialog::accept);
    bar->AddButton(close);
    oButtonBar::layOut(*this, header, m_table, bar);
    // The table takes all of the height.
    static_cast<QBoxLayout *>(layout()->itemAt(1)->layout())->setStretchFactor(m_table, 1);
    if (m_table->rowCount() > 0)
        m_table->setCurrentCell(0, 0);
    m_table->setFocus();
}

QSize frmFolderResults::sizeHint() const
{
    return {Theme::scaled(ResultsWidth), Theme::scaled(ResultsHeight)};
}

void frmFolderResults::fill()
{
    m_table->setObjectName(QStringLiteral("tblResults"));
    m_table->setAccessibleName(m_results.caption);
    m_table->setHorizontalHeaderLabels(m_results.headings);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(mdGridRowHeight());
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setDefaultSectionSize(Theme::scaled(ColumnWidth));
    for (int row = 0; row < m_table->rowCount(); ++row)
        for (int column = 0; column < m_table->columnCount(); ++column) {
            const QString text = m_results.rows[size_t(row)].value(column);
            auto *cell = new QTableWidgetItem(text.simplified());
            cell->setToolTip(mdPlainToolTip(text));
            m_table->setItem(row, column, cell);
        }
    m_table->installEventFilter(this);
    connect(m_table, &QAbstractItemView::doubleClicked, this, &frmFolderResults::openRow);
}

bool frmFolderResults::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && m_results.open) {
        const int key = static_cast<const QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            openRow();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void frmFolderResults::openRow()
{
    if (m_results.open && m_table->currentRow() >= 0)
        m_results.open(m_table->currentRow(), this);
}
