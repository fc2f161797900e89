#include "formdata/clsZR3PreferencesDatabase.h"

#include "base/clsRunTimeError.h"
#include "base/mdDatabasePath.h"
#include "base/mdLog.h"
#include "base/mdPlayWav.h"
#include "base/mdTextDocumentHandling.h"
#include "formdata/mdXMLGenerateNodes.h"
#include "formdata/mdXMLTemplate.h"

namespace {

QString filePath()
{
    return GetDatabasePath() + QStringLiteral("/Preferences Database.vzp");
}

} // namespace

clsZR3PreferencesDatabase::clsZR3PreferencesDatabase()
    : clsXMLRecord(clsXMLPropertyTable::of<clsZR3PreferencesDatabase>())
{
    LoadXML(filePath());
    // Only now: while the preferences are being read nothing is logged, not even the reading.
    SetLogSwitch([this] { return Log(); });
    SetSoundSwitch([this] { return PlaySound(); });
}

clsZR3PreferencesDatabase::~clsZR3PreferencesDatabase()
{
    SetLogSwitch({});
    SetSoundSwitch({});
}

pugi::xml_node clsZR3PreferencesDatabase::XMLNode() const
{
    m_replacements.XMLNode();
    m_rateSets.XMLNode();
    return clsXMLRecord::XMLNode();
}

void clsZR3PreferencesDatabase::LoadXML(const QString &path)
{
    m_root = XMLLoadElement(ReadTextDocument(path, true), "preferencesdatabase");
    bind(m_root.node());
    GenerateNodes(m_root.node(), mdXMLTemplate("xmlZR3PreferencesDatabase"));
    LoadElements();
}

void clsZR3PreferencesDatabase::SaveXML() const
{
    WriteTextDocument(XMLOutput(), filePath(), true);
}

void clsZR3PreferencesDatabase::LoadElements()
{
    // There is no fallback for a missing or malformed file: an administrator creates a new one.
    if (!m_root)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    RenderReplacements();
    RenderRateSets();
}

void clsZR3PreferencesDatabase::RenderReplacements()
{
    m_replacements.render(node().child("replacements"));
}

void clsZR3PreferencesDatabase::RenderRateSets()
{
    m_rateSets.render(node().child("ratesets"));
}
