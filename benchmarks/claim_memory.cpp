// Opens a claim as any headless program of the house does and prints what the process holds then and what it held at
// most, in kilobytes: zr3-claim-memory CLAIM

#include "formdata/clsZR3Form.h"

#include <QFile>

#include <cstdio>

namespace {

/// One value of the system's own account of this process.
QByteArray statusValue(const QByteArray &account, const char *name)
{
    const qsizetype start = account.indexOf(name) + qsizetype(qstrlen(name));
    return account.mid(start, account.indexOf("kB", start) - start).trimmed();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: zr3-claim-memory CLAIM\n", stderr);
        return 1;
    }
    clsZR3Form form;
    if (!form.LoadXML(QFile::decodeName(argv[1])))
        return 2;
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return 3;
    const QByteArray account = file.readAll();
    std::printf("{\"held\": %s, \"peak\": %s}\n", statusValue(account, "VmRSS:").constData(),
        statusValue(account, "VmHWM:").constData());
    return 0;
}
