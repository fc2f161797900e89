#include "wordexport/mdForecast.h"

#include "base/clsProgramEnd.h"
#include "base/clsQuietUserInterface.h"
#include "base/mdCustomMessages.h"
#include "base/mdLog.h"
#include "base/mdRunTimeErrorOf.h"
#include "formdata/clsZR3Form.h"
#include "wordexport/clsExport.h"
#include "wordexport/document/clsMSWordObserver.h"
#include "wordexport/mdExportDriver.h"

#include <QSet>

#include <numeric>

namespace {

/// Collects the messages of an export.
class clsListener final : public clsQuietUserInterface {
public:
    explicit clsListener(std::vector<clsForecast::Message> &messages)
        : m_messages(messages)
    { }

    Answer customMessage(const QString &message, const QString &title, Buttons buttons, int, int) override
    {
        return note(message, title, buttons);
    }
    Answer systemMessage(const QString &message, const QString &title, SystemIcon, Buttons buttons) override
    {
        return note(message, title, buttons);
    }

private:
    Answer note(const QString &message, const QString &title, Buttons buttons)
    {
        m_messages.push_back({title, message});
        return answerThatChangesNothing(buttons);
    }

    std::vector<clsForecast::Message> &m_messages;
};

/// While this object lives, nothing is shown or logged.
struct clsSilence {
    explicit clsSilence(std::vector<clsForecast::Message> &messages)
        : listener(messages)
    { }

    clsListener listener;
    clsUserInterfaceScope userInterface {listener};
    clsMSWordObserver observer {};
    clsMSWordObserverScope observed {observer};
    clsNoLogScope noLog {};
};

} // namespace

int clsForecast::PaperPages() const
{
    return std::accumulate(
        Sheets.begin(), Sheets.end(), 0, [](int sum, const Sheet &sheet) { return sum + sheet.PaperPages; });
}

clsForecast mdForecastOf(const clsExport &run)
{
    clsForecast forecast;
    QSet<QString> seen;
    for (const QString &path : run.ExportFileCollection) {
        const clsSheetFile sheet = run.sheets.value(path);
        forecast.Sheets.push_back(
            {sheet.page, sheet.name, QString(sheet.templateName).chopped(4), sheet.paperPages, sheet.grids});
        if (seen.contains(path))
            continue;
        seen.insert(path);
        forecast.Boxes.insert(forecast.Boxes.end(), sheet.boxes.begin(), sheet.boxes.end());
    }
    return forecast;
}

clsForecast mdForecast(const clsZR3Form &form, const QString &templatesFolder)
{
    std::vector<clsForecast::Message> messages;
    const clsSilence silence(messages);
    clsForecast forecast;
    try {
        clsZR3Form copy;
        copy.takeCopyOf(form);
        clsExport run {.form = copy, .templatesFolder = templatesFolder};
        run.stopsAtLostSheet = true;
        run.inMemory = true;
        const clsExportDriver driver = mdExportDriver(copy.FormType());
        if (!driver)
            messages.push_back({QStringLiteral("Export"), mdNoPagesMessage(copy.FormType())});
        if (driver && driver(run))
            forecast = mdForecastOf(run);
        else
            forecast.Fails = true;
    } catch (const clsProgramEnd &) {
        forecast.Fails = true;
    } catch (const std::exception &) {
        forecast.Fails = true;
        forecast.Error = mdRunTimeErrorOf(std::current_exception());
    }
    forecast.Messages = std::move(messages);
    return forecast;
}

void mdTellAsTheExport(const clsForecast &forecast)
{
    for (const clsForecast::Message &message : forecast.Messages)
        mdCustomMessages(message.Text, message.Title);
    if (forecast.Error)
        throw clsRunTimeError(*forecast.Error);
}
