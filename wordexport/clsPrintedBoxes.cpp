#include "wordexport/clsPrintedBoxes.h"

#include "base/clsProgramEnd.h"
#include "formdata/clsZR3Form.h"
#include "wordexport/clsExport.h"
#include "wordexport/clsSilentTrial.h"
#include "wordexport/document/clsMSWord.h"
#include "wordexport/document/clsWordDocument.h"
#include "wordexport/mdExportCopyTemplate.h"
#include "wordexport/mdExportDriver.h"

namespace {

/// More lines than any box has.
constexpr int MostLines = 100;

clsPrintedFit::clsState stateOf(clsFittedText::State state)
{
    switch (state) {
    case clsFittedText::Smaller: return clsPrintedFit::Smaller;
    case clsFittedText::RunsOn: return clsPrintedFit::RunsOn;
    case clsFittedText::Cut: break;
    }
    return clsPrintedFit::Cut;
}

} // namespace

clsPrintedBoxes::clsPrintedBoxes(const QString &formType, const QString &templatesFolder)
{
    const clsExportDriver driver = mdExportDriver(formType);
    if (!driver)
        return;
    const clsSilentTrial silent;
    try {
        // An export of an empty claim shows which box belongs to which field.
        clsZR3Form form;
        form.FormType = formType;
        clsExport run {.form = form, .templatesFolder = templatesFolder};
        run.inMemory = true;
        if (!driver(run))
            return;
        for (auto field = run.fields.constBegin(); field != run.fields.constEnd(); ++field) {
            const auto &[page, placeholder] = field.key();
            for (const clsSheetFile &sheet : std::as_const(run.sheets))
                if (sheet.name == mdSheetName(page, 1))
                    m_boxes[field.value()].push_back({sheet.templateName, placeholder, page});
        }
        for (auto original = run.templates.constBegin(); original != run.templates.constEnd(); ++original)
            m_templates.insert(original.key(), original->content);
    } catch (const clsProgramEnd &) {
        m_boxes.clear();
    } catch (const std::exception &) {
        m_boxes.clear();
    }
}

std::optional<clsPrintedFit> clsPrintedBoxes::fit(const QString &property, const QString &text)
{
    std::optional<clsPrintedFit> worst;
    const auto boxes = m_boxes.find(property);
    if (boxes == m_boxes.end() || text.isEmpty())
        return worst;
    const clsSilentTrial silent;
    for (clsBox &box : boxes.value()) {
        std::optional<clsPrintedFit> fit = fitInto(box, text);
        if (!fit || (worst && worst->state >= fit->state))
            continue;
        fit->room = roomOf(box);
        worst = fit;
    }
    return worst;
}

std::optional<clsPrintedFit> clsPrintedBoxes::fitInto(const clsBox &box, const QString &text) const
{
    clsMSWord word;
    word.OpenDocument(box.templateName, box.templateName, m_templates.value(box.templateName));
    if (!word.isOpen())
        return {};
    word.DoReplace(box.placeholder, text, false, false, true);
    for (const clsFittedText &fitted : word.openDocument()->fit())
        if (fitted.placeholder == box.placeholder)
            return clsPrintedFit {stateOf(fitted.state), fitted.lines, 0};
    return {};
}

QHash<QString, QString> clsPrintedBoxes::properties(int page) const
{
    QHash<QString, QString> found;
    for (auto boxes = m_boxes.constBegin(); boxes != m_boxes.constEnd(); ++boxes)
        for (const clsBox &box : boxes.value())
            if (box.page == page)
                found.insert(box.placeholder, boxes.key());
    return found;
}

int clsPrintedBoxes::roomOf(clsBox &box) const
{
    if (box.room > 0)
        return box.room;
    const auto fits
        = [&](int lines) { return !fitInto(box, QString(QStringLiteral("x\r\n")).repeated(lines - 1) + u'x'); };
    int most = 1;
    int tooMany = MostLines;
    while (tooMany - most > 1) {
        const int between = (most + tooMany) / 2;
        (fits(between) ? most : tooMany) = between;
    }
    return box.room = most;
}
