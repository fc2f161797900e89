#include "commands/clsNotStored.h"

#include "base/clsUserInterface.h"
#include "base/mdStateFile.h"
#include "commands/clsJournal.h"
#include "commands/mdTypedTextsJson.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <optional>

namespace {

constexpr char FileName[] = "Not stored.json";

QString fileName()
{
    return QString::fromLatin1(FileName);
}

std::optional<QJsonObject> readFile()
{
    return mdReadStateObject(fileName());
}

/// A failure loses the typed text, but must not stop the caller.
template <class Step> void guarded(Step step) noexcept
{
    try {
        step();
    } catch (...) { }
}

} // namespace

clsNotStored &NotStored()
{
    // The program has one document; screens and commands report what was not stored in it.
    static clsNotStored notStored;
    return notStored;
}

void clsNotStored::keep(clsTypedTexts texts) noexcept
{
    guarded([&] {
        erase(texts.screen);
        m_all.push_back(std::move(texts));
        write();
        Journal().stepTaken();
    });
}

void clsNotStored::forget(const QString &screen) noexcept
{
    guarded([&] {
        erase(screen);
        write();
        Journal().stepTaken();
    });
}

void clsNotStored::erase(const QString &screen)
{
    std::erase_if(m_all, [&](const clsTypedTexts &one) { return one.screen == screen; });
}

void clsNotStored::leaveClaim() noexcept
{
    guarded([this] {
        if (!m_all.empty()) {
            m_all.clear();
            write();
        }
        m_path.clear();
    });
}

void clsNotStored::openClaim(const QString &path) noexcept
{
    guarded([&] {
        m_path = QFileInfo(path).absoluteFilePath();
        const auto claims = readFile();
        if (!claims) {
            mdSetStateFileAside(fileName());
            return UserInterface().tellLine(QStringLiteral("What was typed and not stored could not be read"));
        }
        for (const auto &texts : claims->value(m_path).toArray())
            m_all.push_back(TypedTextsOf(texts.toObject()));
    });
}

void clsNotStored::claimSaved(const QString &path) noexcept
{
    guarded([&] {
        const QString absolute = QFileInfo(path).absoluteFilePath();
        if (absolute == m_path)
            return;
        m_path = absolute;
        if (!m_all.empty())
            write();
    });
}

void clsNotStored::write()
{
    if (m_path.isEmpty())
        return;
    // Read again: another window may have kept text of another claim meanwhile.
    QJsonObject claims = readFile().value_or(QJsonObject());
    const bool wasThere = claims.contains(m_path);
    QJsonArray kept;
    for (const clsTypedTexts &texts : m_all)
        kept.append(TypedTextsObject(texts));
    if (kept.isEmpty())
        claims.remove(m_path);
    else
        claims.insert(m_path, kept);
    if (wasThere || !kept.isEmpty())
        mdWriteStateFile(fileName(), QJsonDocument(claims).toJson());
}
