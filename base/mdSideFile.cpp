#include "base/mdSideFile.h"

#include "base/clsFileSystem.h"
#include "base/mdShortenedName.h"

#include <QCryptographicHash>
#include <QFileInfo>

namespace {

constexpr qsizetype ShortenedTo = 100; // bytes: some file systems allow only 143
constexpr qsizetype MarkDigits = 16;

} // namespace

QString mdSideFile(const QString &path)
{
    const QString side = path + u'a';
    if (!FileSystem().NameIsTooLong(side))
        return side;
    const QString name = QFileInfo(path).fileName();
    const QByteArray mark = QCryptographicHash::hash(QFile::encodeName(name), QCryptographicHash::Sha256).toHex();
    return path.chopped(name.size()) + mdShortenedName(name, ShortenedTo) + u'~'
        + QString::fromLatin1(mark.left(MarkDigits)) + QStringLiteral(".zr3a");
}
