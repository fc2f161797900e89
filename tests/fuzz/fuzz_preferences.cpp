// The file of the preferences.

#include "base/mdDatabasePath.h"
#include "base/mdGetResourceData.h"
#include "base/mdLog.h"
#include "base/mdPlayWav.h"
#include "base/mdProgramFolder.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdGlobals.h"
#include "formdata/mdLateProperty.h"
#include "formdata/mdReplacements.h"
#include "tests/fuzz/mdFuzz.h"
#include "tests/fuzz/mdFuzzRecord.h"
#include "tests/fuzz/mdFuzzWords.h"
#include "tests/fuzz/mdFuzzXml.h"

#include <QFile>

namespace {

using Error = clsRunTimeError;

const QString FileName = QStringLiteral("Preferences Database.vzp");

clsFuzzUser &user()
{
    static clsFuzzUser user;
    return user;
}

const clsFuzzWords &words()
{
    static const clsFuzzWords words = mdFuzzWordsOf(
        {"xmlZR3PreferencesDatabase", "xmlZR3Replacement", "xmlZR3RateSet"}, {"replacement", "rateset"});
    return words;
}

void attackRecords(clsZR3PreferencesDatabase &preferences)
{
    mdFuzzRewrite(preferences);
    for (const auto &item : preferences.ReplacementsCollection())
        mdFuzzRewrite(*item);
    for (const auto &item : preferences.RateSetsCollection())
        mdFuzzRewrite(*item);
}

/// Applies the abbreviations, while the text stays of a size that a box could hold.
void attackReplacements(const clsZR3PreferencesDatabase &preferences)
{
    constexpr size_t Few = 6;
    if (preferences.ReplacementsCollection().size() > Few)
        return;
    for (const auto &item : preferences.ReplacementsCollection()) {
        const QString text
            = item->InputText() + u' ' + item->OutputText() + QStringLiteral(" \r\n") + item->InputText() + u' ';
        ExpandReplacements(text);
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    static const clsUserInterfaceScope scope(user());
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(mdFuzzFolder()));
    qputenv("XDG_CONFIG_DIRS", QFile::encodeName(mdFuzzFolder()));
    SetProgramFolder(mdFuzzFolder());
    mdFuzzPut(FileName,
        GetResourceData(QStringLiteral("xmlZR3PreferencesDatabase"), QStringLiteral("VELMORZR3XML")).toLatin1());
    SetDatabasePath(mdFuzzFolder());
    Preferences = std::make_unique<clsZR3PreferencesDatabase>();
    // Otherwise the input's preferences would switch on logging into a folder that doesn't exist.
    SetLogSwitch({});
    SetSoundSwitch({});
    return 0;
}

void mdFuzzAttack(const uint8_t *data, size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), qsizetype(size));
    user().messages = 0;
    const QString path = mdFuzzPut(FileName, input);
    if (mdFuzzErrorOf({Error::ObjectNotSet}, "preferences that are none are the object error",
            [&] { Preferences->LoadXML(path); }))
        return;
    attackRecords(*Preferences);
    attackReplacements(*Preferences);
    Preferences->SaveXML();
    const QByteArray saved = mdFuzzBytesOf(path);
    Preferences->LoadXML(path);
    Preferences->SaveXML();
    mdFuzzSame(saved, mdFuzzBytesOf(path), "preferences that were saved are saved again as they are");
    mdFuzzRequire(user().messages == 0, "reading and saving say nothing");
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t longest, unsigned seed)
{
    return mdFuzzChangeXml(data, size, longest, seed, words());
}
