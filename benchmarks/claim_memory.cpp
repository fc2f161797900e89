// Opens a claim without a window and prints the memory of the process afterwards and its maximum, in kilobytes:
// zr3-claim-memory CLAIM [FOLDER]. With a folder the claim is exported to it, and "exported" is the maximum at the end.

#include "formdata/clsZR3Form.h"
#include "wordexport/clsExport.h"
#include "wordexport/mdExportDriver.h"

#include <QFile>

#include <cstdio>
#include <cstdlib>

namespace {

/// One value of the kernel's status of this process.
QByteArray statusValue(const char *name)
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        std::exit(3);
    const QByteArray account = file.readAll();
    const qsizetype start = account.indexOf(name) + qsizetype(qstrlen(name));
    return account.mid(start, account.indexOf("kB", start) - start).trimmed();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2 && argc != 3) {
        std::fputs("usage: zr3-claim-memory CLAIM [FOLDER]\n", stderr);
        return 1;
    }
    clsZR3Form form;
    if (!form.LoadXML(QFile::decodeName(argv[1])))
        return 2;
    std::printf("{\"held\": %s, \"peak\": %s", statusValue("VmRSS:").constData(), statusValue("VmHWM:").constData());
    if (argc == 3) {
        form.ExportPath = QFile::decodeName(argv[2]);
        clsExport run {.form = form, .templatesFolder = QStringLiteral(ZR3_TEMPLATES)};
        if (!mdExportDriver(form.FormType())(run))
            return 4;
        std::printf(", \"exported\": %s, \"sheets\": %d", statusValue("VmHWM:").constData(),
            int(run.ExportFileCollection.size()));
    }
    std::puts("}");
    return 0;
}
