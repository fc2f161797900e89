#include "editors/mdScreens.h"

#include "controls/oAllPurposeBox.h"
#include "controls/oHeaderBar.h"
#include "costing/tables/mdCodeWordsFile.h"
#include "editors/frmScreen.h"
#include "editors/mdEditCodeWords.h"
#include "editors/mdEditItem.h"
#include "formdata/clsXMLRecord.h"
#include "formdata/mdScheduleOfTimeCodesCollection.h"

namespace {

/// The words while they are edited; not part of a claim.
class clsEditedCodes final : public clsXMLRecord {
public:
    explicit clsEditedCodes(const clsCodeWords &words)
        : clsXMLRecord(clsXMLPropertyTable::of<clsEditedCodes>())
    {
        bind(m_own.append_child("codes"));
        for (const QString &code : mdScheduleOfTimeCodesCollection()) {
            node().append_child(code.toLower().toLatin1().constData());
            field(code)->writeText(words.of(code));
        }
    }

    // clang-format off
    clsXMLText<"ACL"> ACL {*this};
    clsXMLText<"ACO"> ACO {*this};
    clsXMLText<"ACT"> ACT {*this};
    clsXMLText<"AEX"> AEX {*this};
    clsXMLText<"AOS"> AOS {*this};
    clsXMLText<"AOT"> AOT {*this};
    clsXMLText<"ASI"> ASI {*this};
    clsXMLText<"ASO"> ASO {*this};
    clsXMLText<"AWI"> AWI {*this};
    clsXMLText<"DAF"> DAF {*this};
    clsXMLText<"DAG"> DAG {*this};
    clsXMLText<"DAN"> DAN {*this};
    clsXMLText<"DAP"> DAP {*this};
    clsXMLText<"DBL"> DBL {*this};
    clsXMLText<"DCN"> DCN {*this};
    clsXMLText<"DFL"> DFL {*this};
    clsXMLText<"DIC"> DIC {*this};
    clsXMLText<"DNO"> DNO {*this};
    clsXMLText<"DOT"> DOT {*this};
    clsXMLText<"DPL"> DPL {*this};
    clsXMLText<"DST"> DST {*this};
    clsXMLText<"HDI"> HDI {*this};
    clsXMLText<"HFN"> HFN {*this};
    clsXMLText<"HIN"> HIN {*this};
    clsXMLText<"HOT"> HOT {*this};
    clsXMLText<"OOT"> OOT {*this};
    clsXMLText<"RES"> RES {*this};
    clsXMLText<"REX"> REX {*this};
    clsXMLText<"RMD"> RMD {*this};
    clsXMLText<"ROP"> ROP {*this};
    clsXMLText<"ROT"> ROT {*this};
    clsXMLText<"RWE"> RWE {*this};
    // clang-format on

private:
    pugi::xml_document m_own;
};

/// The words changed by the user.
QHash<QString, QString> changesIn(const frmScreen &screen, const clsCodeWords &words)
{
    QHash<QString, QString> changes;
    for (const QString &code : mdScheduleOfTimeCodesCollection()) {
        const QString text = screen.Box<oAllPurposeBox>(("txt" + code.toLatin1()).constData()).Text().simplified();
        if (text != words.of(code))
            changes.insert(code, text);
    }
    return changes;
}

} // namespace

/// The firm's words for the codes, by the columns of the bill.
const clsScreen &ScreenCodeWords()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmCodeWords",
        .header = "Codes",
        .subCaption = "Your firm's words for the codes, for all users of the database folder",
        .iconGroup = 12,
        .width = clsScreenWidth::TwoColumns,
        .ending = clsScreenEnding::SaveCancel,
        .frames = {
            {"bxAttendances", "Att / Conf", {
                {Text, "txtACL", "ACL:", 0, NoReplacements},
                {Text, "txtACO", "ACO:", 0, NoReplacements},
                {Text, "txtACT", "ACT:", 0, NoReplacements},
                {Text, "txtAEX", "AEX:", 0, NoReplacements},
                {Text, "txtAOS", "AOS:", 0, NoReplacements},
                {Text, "txtAOT", "AOT:", 0, NoReplacements},
                {Text, "txtASI", "ASI:", 0, NoReplacements},
                {Text, "txtASO", "ASO:", 0, NoReplacements},
                {Text, "txtAWI", "AWI:", 0, NoReplacements},
            }},
            {"bxHearings", "Hrng", {
                {Text, "txtHDI", "HDI:", 0, NoReplacements},
                {Text, "txtHFN", "HFN:", 0, NoReplacements},
                {Text, "txtHIN", "HIN:", 0, NoReplacements},
                {Text, "txtHOT", "HOT:", 0, NoReplacements},
            }},
            {.name = "bxDocuments", .caption = "Docs", .rows = {
                {Text, "txtDAF", "DAF:", 0, NoReplacements},
                {Text, "txtDAG", "DAG:", 0, NoReplacements},
                {Text, "txtDAN", "DAN:", 0, NoReplacements},
                {Text, "txtDAP", "DAP:", 0, NoReplacements},
                {Text, "txtDBL", "DBL:", 0, NoReplacements},
                {Text, "txtDCN", "DCN:", 0, NoReplacements},
                {Text, "txtDFL", "DFL:", 0, NoReplacements},
                {Text, "txtDIC", "DIC:", 0, NoReplacements},
                {Text, "txtDNO", "DNO:", 0, NoReplacements},
                {Text, "txtDOT", "DOT:", 0, NoReplacements},
                {Text, "txtDPL", "DPL:", 0, NoReplacements},
                {Text, "txtDST", "DST:", 0, NoReplacements},
                {Text, "txtOOT", "OOT:", 0, NoReplacements},
                {Text, "txtRES", "RES:", 0, NoReplacements},
                {Text, "txtREX", "REX:", 0, NoReplacements},
                {Text, "txtRMD", "RMD:", 0, NoReplacements},
                {Text, "txtROP", "ROP:", 0, NoReplacements},
                {Text, "txtROT", "ROT:", 0, NoReplacements},
                {Text, "txtRWE", "RWE:", 0, NoReplacements},
            }, .startsColumn = true},
        },
        .itemWord = "Codes",
        .fileMenu = false,
    };
    // clang-format on
    return screen;
}

bool mdEditCodeWords(QWidget *owner, const clsCodeWords &words)
{
    clsEditedCodes edited(words);
    return mdEditItem(owner, ScreenCodeWords(), &edited, [&](frmScreen &screen) {
        if (const QString wrong = words.wrongLinesInWords(); !wrong.isEmpty())
            screen.findChild<oHeaderBar *>(QStringLiteral("oHeader"))->setSubCaption(wrong);
        screen.setMayStore([&] {
            const QHash<QString, QString> changes = changesIn(screen, words);
            return changes.isEmpty() || mdWriteCodeWords(changes);
        });
    });
}
