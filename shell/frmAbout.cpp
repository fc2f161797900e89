#include "shell/frmAbout.h"

#include "base/mdGetResourceData.h"
#include "base/mdGetVersionInfo.h"
#include "base/mdLog.h"
#include "base/mdShellExecute.h"
#include "controls/mdCaption.h"
#include "controls/mdTheme.h"
#include "controls/oButtonBar.h"
#include "controls/oCustomButton.h"
#include "controls/oFrame.h"
#include "controls/oHeaderBar.h"
#include "wordexport/document/clsMSWord.h"

#include <QFocusEvent>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

/// A link that is selected when it gets the focus by Tab, so that Enter opens it.
class oLink final : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void focusInEvent(QFocusEvent *event) override
    {
        QLabel::focusInEvent(event);
        if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
            focusNextPrevChild(event->reason() == Qt::TabFocusReason);
    }
};

QString companyInfo(const char *name)
{
    return GetResourceData(QString::fromLatin1(name), QStringLiteral("COMPANYINFO"));
}

QString foundWord()
{
    clsMSWord word;
    const QString text = QStringLiteral("Found - Microsoft Word ") + word.VersionString();
    word.Quit();
    return text;
}

} // namespace

frmAbout::frmAbout(bool wordInstalled, QWidget *parent)
    : QDialog(parent)
    , bxGeneral(new oFrame(this))
    , cmdClose(new oCustomButton(this))
{
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("About Velmor ZR3"));
    WriteLog(objectName() + QStringLiteral(" Opened"));

    auto *header = new oHeaderBar(this);
    header->setObjectName(QStringLiteral("oHeader"));
    header->setCaption(windowTitle());
    bxGeneral->setObjectName(QStringLiteral("bxGeneral"));
    bxGeneral->setCaption(QStringLiteral("Velmor ZR3"));

    auto *rows = new QFormLayout;
    rows->setHorizontalSpacing(Theme::Space12);
    rows->setVerticalSpacing(Theme::Space8);
    addRow(*rows, QStringLiteral("Version:"), "lblVersion", QStringLiteral("Velmor ZR3 ") + GetVersionInfo());
    addRow(*rows, QStringLiteral("MS Word Status:"), "lblWordStatus",
        wordInstalled ? foundWord() : QStringLiteral("Not Found"));
    const QString email = companyInfo("ciSupportEmail");
    addLink(*rows, QStringLiteral("Support Email:"), "lblSupportEmail", email, QStringLiteral("mailto:") + email);
    const QString website = companyInfo("ciWebsite");
    addLink(*rows, QStringLiteral("Web Address:"), "lblWebAddress", website, website);
    bxGeneral->bodyLayout()->addLayout(rows);
    if (!wordInstalled) {
        auto *status = findChild<QLabel *>(QStringLiteral("lblWordStatus"));
        QPalette red = status->palette();
        red.setColor(QPalette::WindowText, Theme::Red);
        status->setPalette(red);
    }

    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    cmdClose->setCaption(QStringLiteral("&Close"));
    cmdClose->setLook(oCustomButton::Look::Default);
    connect(cmdClose, &oCustomButton::Click, this, &QDialog::accept);
    auto *bar = new oButtonBar(this);
    bar->AddButton(cmdClose);
    oButtonBar::layOut(*this, header, bxGeneral, bar);
    setMinimumWidth(Theme::scaled(480));
    cmdClose->setFocus();
}

void frmAbout::addRow(QFormLayout &rows, const QString &caption, const char *name, const QString &text)
{
    auto *content = new QLabel(text, bxGeneral);
    content->setTextFormat(Qt::PlainText);
    content->setObjectName(QString::fromLatin1(name));
    content->setAccessibleName(mdSpokenCaption(caption));
    rows.addRow(caption, content);
}

void frmAbout::addLink(
    QFormLayout &rows, const QString &caption, const char *name, const QString &text, const QString &target)
{
    auto *content = new oLink(bxGeneral);
    content->setTextFormat(Qt::RichText);
    content->setText(QStringLiteral("<a href=\"%1\">%2</a>").arg(target.toHtmlEscaped(), text.toHtmlEscaped()));
    content->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    content->setObjectName(QString::fromLatin1(name));
    content->setAccessibleName(mdSpokenCaption(caption));
    connect(content, &QLabel::linkActivated, this, [](const QString &link) { ShellOpen(link); });
    rows.addRow(caption, content);
}
