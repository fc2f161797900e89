// Writes a generated claim: zr3-make-claim ITEMS FILE

#include "base/mdGetVersionInfo.h"
#include "benchmarks/mdMakeClaim.h"
#include "formdata/clsZR3Form.h"

#include <QFile>

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fputs("usage: zr3-make-claim ITEMS FILE\n", stderr);
        return 1;
    }
    const int items = QByteArray(argv[1]).toInt();
    const QString file = QFile::decodeName(argv[2]);
    clsZR3Form form;
    if (items > 0)
        mdMakeClaim(form, items);
    form.Version = GetVersionInfo();
    form.path = file;
    form.SaveXML(file);
    return QFile::exists(file) ? 0 : 1;
}
