#include "shell/clsFormPages.h"

#include "base/mdClock.h"
#include "formdata/clsZR3Form.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdGlobals.h"
#include "preview/oFormPages.h"
#include "preview/oPageView.h"
#include "shell/mdPageBoxes.h"
#include "wordexport/mdOfficeProgram.h"

clsFormPages::clsFormPages(oFormPages &page, QObject *parent)
    : QObject(parent)
    , m_page(page)
{
    connect(&m_maker, &clsPagesMaker::Progress, &m_page, &oFormPages::ShowProgress);
    connect(&m_maker, &clsPagesMaker::Ended, this, &clsFormPages::ended);
    connect(&m_page, &oFormPages::Cancel, &m_maker, &clsPagesMaker::Cancel);
    connect(&m_page, &oFormPages::Refresh, this, &clsFormPages::Show);
}

void clsFormPages::Show()
{
    if (!Form)
        return;
    const QString text = mdPrintedText(*Form);
    if (m_page.HasPages() && text == m_shown)
        m_page.setOld(false);
    else
        make(text);
}

void clsFormPages::make(const QString &text)
{
    if (m_maker.isRunning()) {
        if (text == m_making)
            return;
        m_maker.Cancel();
    }
    m_making = text;
    m_begun = Now();
    m_maker.Start(*Form, m_page.HasPages() ? m_document : QByteArray());
}

void clsFormPages::Activate(bool makesAnew)
{
    if (!Form)
        return;
    const QString text = mdPrintedText(*Form);
    const bool old = m_page.HasPages() && text != m_shown;
    if (makesAnew && text != m_notMade && (old || (m_maker.isRunning() && text != m_making)))
        make(text);
    else
        m_page.setOld(old);
}

void clsFormPages::Forget()
{
    m_maker.Cancel();
    m_page.Clear();
    m_shown.clear();
    m_document.clear();
    m_notMade.clear();
}

QByteArray clsFormPages::CurrentPdf() const
{
    return m_page.HasPages() && Form && mdPrintedText(*Form) == m_shown ? m_page.Pdf() : QByteArray();
}

void clsFormPages::showMarks()
{
    clsPageMarks marks = mdPageMarks(m_maker.Sheets(), Form->FormType(), m_page.Pages());
    m_page.View()->setBoxes(std::move(marks.boxes));
    m_page.View()->setSigns(std::move(marks.signs));
}

void clsFormPages::ended(clsPagesMaker::clsResult result)
{
    m_page.EndProgress();
    m_notMade = m_making;
    switch (result) {
    case clsPagesMaker::Made:
        if (!m_page.ShowPages(m_maker.Pdf(), m_begun)) {
            m_page.ShowFailure(QStringLiteral("The office program made no pages that can be shown."));
            return;
        }
        m_document = m_maker.Document();
        showMarks();
        break;
    case clsPagesMaker::Unchanged: m_page.setAsOf(m_begun); break;
    case clsPagesMaker::Cancelled:
        m_page.ShowFailure(
            m_page.HasPages() ? QString() : QStringLiteral("The pages have not been drawn. Choose Form Pages again."));
        return;
    case clsPagesMaker::Failed:
        m_page.ShowFailure(mdOfficeProgram().isEmpty() ? QStringLiteral(
                               "Form pages need an office program. Install LibreOffice Writer, then choose Form Pages "
                               "again.")
                                                       : m_maker.Failure());
        return;
    }
    m_shown = m_making;
    m_notMade.clear();
    // The claim may have changed while its pages were drawn.
    if (Form)
        Activate(Preferences && Preferences->AutoRefreshPreview());
}
