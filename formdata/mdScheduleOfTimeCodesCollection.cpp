#include "formdata/mdScheduleOfTimeCodesCollection.h"

#include "base/mdCustomMessages.h"

const QStringList &mdScheduleOfTimeCodesCollection()
{
    static const QStringList codes
        = QStringLiteral("ACL ACO ACT AEX AOS AOT ASI ASO AWI DAF DAG DAN DAP DBL DCN DFL DIC DNO DOT DPL DST HDI HFN "
                         "HIN HOT OOT RES REX RMD ROP ROT RWE")
              .split(u' ');
    return codes;
}

bool mdCheckScheduleOfTimeCode(const QString &code)
{
    if (mdScheduleOfTimeCodesCollection().contains(code))
        return true;
    mdCustomMessages(QStringLiteral("The code entered is invalid"), QStringLiteral("Invalid Code"));
    return false;
}
