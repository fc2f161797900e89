#include "base/mdRealPath.h"

#include <QFile>

#include <cerrno>
#include <cstdlib>
#include <memory>

QByteArray mdRealPath(const QByteArray &path)
{
    std::unique_ptr<char, decltype(&std::free)> real(nullptr, &std::free);
    do
        real.reset(::realpath(path.constData(), nullptr));
    while (!real && errno == EINTR);
    return real ? QByteArray(real.get()) : QByteArray();
}

QByteArray mdRealFolder(const QString &path)
{
    const QByteArray named = QFile::encodeName(path);
    const QByteArray real = mdRealPath(named);
    const QByteArray &file = real.isEmpty() ? named : real;
    const qsizetype end = file.lastIndexOf('/');
    return end < 0 ? QByteArray(".") : file.left(qMax(end, qsizetype(1)));
}
