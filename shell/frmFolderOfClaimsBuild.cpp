#include "shell/frmFolderOfClaims.h"

#include "controls/mdLine.h"
#include "controls/mdTheme.h"
#include "controls/oButtonBar.h"
#include "controls/oCheckBox.h"
#include "controls/oCustomButton.h"
#include "controls/oFrame.h"
#include "controls/oHeaderBar.h"
#include "controls/oLineBox.h"
#include "shell/oFolderHeader.h"
#include "shell/oFolderTable.h"
#include "shell/oFolderTotals.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include <algorithm>

// The widgets of the window and their layout.

namespace {

constexpr int FolderWidth = 1366;
constexpr int FolderHeight = 740;
constexpr int FilterWidth = 280;
constexpr int BarWidth = 160;
constexpr int BarHeight = 5;
constexpr int ProgressHeight = 34;

QLabel *folderLabel(const char *name, const QColor &colour, const QString &text = {})
{
    auto *label = new QLabel(text);
    label->setObjectName(QString::fromLatin1(name));
    if (text.isEmpty())
        label->setTextFormat(Qt::PlainText);
    QPalette palette;
    palette.setColor(QPalette::WindowText, colour);
    label->setPalette(palette);
    return label;
}

oCustomButton *folderButton(const char *name, const char *caption)
{
    auto *button = new oCustomButton;
    button->setObjectName(QString::fromLatin1(name));
    button->setCaption(QString::fromLatin1(caption));
    return button;
}

} // namespace

void frmFolderOfClaims::build()
{
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(makeHeader());
    auto *middle = new QVBoxLayout;
    middle->setContentsMargins(Theme::Space24, Theme::Space16, Theme::Space24, Theme::Space16);
    middle->addWidget(makeList());
    all->addLayout(middle, 1);
    all->addWidget(makeProgress());
    all->addWidget(makeBar());
    makeTabOrder();
}

QSize frmFolderOfClaims::sizeHint() const
{
    // The list's fonts don't shrink below their design size, so the window doesn't either.
    return {std::max(FolderWidth, Theme::scaled(FolderWidth)), std::max(FolderHeight, Theme::scaled(FolderHeight))};
}

QWidget *frmFolderOfClaims::makeHeader()
{
    m_header = new oHeaderBar(this);
    m_header->setObjectName(QStringLiteral("oHeader"));
    m_header->setCaption(windowTitle());
    cmdChooseFolder = folderButton("cmdChooseFolder", "Choose &Folder...");
    auto *line = new QHBoxLayout(m_header);
    line->setContentsMargins(0, 0, Theme::Space24 - Theme::RingRoom, 0);
    line->addStretch();
    line->addWidget(cmdChooseFolder);
    return m_header;
}

QWidget *frmFolderOfClaims::makeList()
{
    auto *frame = new oFrame(this);
    frame->setAccessibleName(windowTitle());
    frame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    frame->captionBar()->hide();
    m_table = new oFolderTable(*m_claims);
    m_totals = new oFolderTotals(*m_table);
    txtFilter = new oLineBox;
    txtFilter->setObjectName(QStringLiteral("txtFilter"));
    txtFilter->setAccessibleName(QStringLiteral("Filter"));
    txtFilter->setFixedWidth(Theme::scaled(FilterWidth));
    auto *filter = folderLabel("lblFilter", Theme::Ink, QStringLiteral("F&ilter:"));
    filter->setBuddy(txtFilter);
    chkOnlyWithErrors = new oCheckBox;
    chkOnlyWithErrors->setObjectName(QStringLiteral("chkOnlyWithErrors"));
    chkOnlyWithErrors->setCaption(QStringLiteral("Only with errors"));
    auto *only = folderLabel("lblOnlyWithErrors", Theme::Ink, QStringLiteral("Only &with errors"));
    only->setBuddy(chkOnlyWithErrors);
    lblState = folderLabel("lblState", Theme::Ink2);
    lblState->setFont(Theme::font(-1));

    auto *line = new QHBoxLayout;
    line->setSpacing(Theme::Space8);
    line->addWidget(filter);
    line->addWidget(txtFilter);
    line->addSpacing(Theme::Space12);
    line->addWidget(chkOnlyWithErrors);
    line->addWidget(only);
    line->addStretch();
    line->addWidget(lblState);
    frame->bodyLayout()->setContentsMargins(Theme::Space16, Theme::Space16, Theme::Space16, Theme::Space8);
    frame->bodyLayout()->setSpacing(Theme::Space12);
    frame->bodyLayout()->addLayout(line);
    frame->bodyLayout()->addWidget(m_table, 1);
    frame->bodyLayout()->addWidget(m_totals);
    return frame;
}

QWidget *frmFolderOfClaims::makeProgress()
{
    m_progress = new QWidget(this);
    m_progress->setAutoFillBackground(true);
    QPalette paper = m_progress->palette();
    paper.setColor(QPalette::Window, Theme::Paper);
    m_progress->setPalette(paper);
    lblProgress = folderLabel("lblProgress", Theme::Ink);
    lblProgress->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    lblProgress->setMinimumWidth(1);
    pbProgress = new QProgressBar;
    pbProgress->setObjectName(QStringLiteral("pbProgress"));
    pbProgress->setAccessibleName(QStringLiteral("Progress"));
    pbProgress->setTextVisible(false);
    pbProgress->setFixedSize(Theme::scaled(BarWidth), BarHeight);
    cmdCancel = folderButton("cmdCancel", "Ca&ncel");
    cmdReplace = folderButton("cmdReplace", "&Replace");
    cmdReplace->setToolTip(QStringLiteral("Make the documents anew that are there already"));
    cmdDetails = folderButton("cmdDetails", "&Show");
    auto *line = new QHBoxLayout;
    line->setContentsMargins(Theme::Space24, Theme::Space4, Theme::Space24, Theme::Space4);
    line->setSpacing(Theme::Space12);
    line->addWidget(lblProgress);
    line->addWidget(pbProgress);
    for (oCustomButton *button : {cmdCancel, cmdReplace, cmdDetails}) {
        button->setLook(oCustomButton::Look::Small);
        button->hide();
        line->addWidget(button);
    }
    line->addStretch();
    auto *all = new QVBoxLayout(m_progress);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(mdHorizontalLine(m_progress));
    all->addLayout(line);
    m_progress->setMinimumHeight(Theme::scaled(ProgressHeight));
    m_progress->hide();
    return m_progress;
}

QWidget *frmFolderOfClaims::makeBar()
{
    auto *bar = new oButtonBar(this);
    cmdOpen = folderButton("cmdOpen", "&Open");
    cmdCheck = folderButton("cmdCheck", "Chec&k");
    cmdCompare = folderButton("cmdCompare", "Co&mpare...");
    cmdExport = folderButton("cmdExport", "&Export");
    cmdExportAsPdf = folderButton("cmdExportAsPdf", "Export as &PDF");
    cmdClose = folderButton("cmdClose", "&Close");
    cmdClose->setLook(oCustomButton::Look::Default);
    for (oCustomButton *button : {cmdOpen, cmdCheck, cmdCompare})
        bar->AddLeft(button);
    auto *gap = new QWidget(bar);
    gap->setFixedWidth(Theme::Space8);
    bar->AddLeft(gap);
    bar->AddLeft(cmdExport);
    bar->AddLeft(cmdExportAsPdf);
    bar->AddButton(cmdClose);
    return bar;
}

/// In reading order.
void frmFolderOfClaims::makeTabOrder()
{
    QWidget *before = cmdChooseFolder;
    for (QWidget *next :
        std::initializer_list<QWidget *> {txtFilter, chkOnlyWithErrors, m_table->Header(), m_table, m_totals, cmdCancel,
            cmdReplace, cmdDetails, cmdOpen, cmdCheck, cmdCompare, cmdExport, cmdExportAsPdf, cmdClose}) {
        setTabOrder(before, next);
        before = next;
    }
}
