#pragma once

#include "formdata/clsZR3Item.h"
#include "formdata/clsZR3List.h"

/// An abbreviation and the text that the boxes expand it to.
class clsZR3Replacement : public clsZR3Item {
public:
    clsZR3Replacement()
        : clsZR3Item(clsXMLPropertyTable::of<clsZR3Replacement>(), "xmlZR3Replacement")
    { }

    clsXMLText<"InputText"> InputText {*this};
    clsXMLText<"OutputText"> OutputText {*this};
};

/// A named set of the seven rates of a fee earner group, pounds as text.
class clsZR3RateSet : public clsZR3Item {
public:
    clsZR3RateSet()
        : clsZR3Item(clsXMLPropertyTable::of<clsZR3RateSet>(), "xmlZR3RateSet")
    { }

    clsXMLText<"Name"> Name {*this};
    clsXMLText<"HourlyRate"> HourlyRate {*this};
    clsXMLText<"CallsRate"> CallsRate {*this};
    clsXMLText<"LettersInRate"> LettersInRate {*this};
    clsXMLText<"LettersOutRate"> LettersOutRate {*this};
    clsXMLText<"AdvocacyRate"> AdvocacyRate {*this};
    clsXMLText<"CounselRate"> CounselRate {*this};
    clsXMLText<"TravelAndWaitingRate"> TravelAndWaitingRate {*this};
};

/// The settings independent of a claim: switches, abbreviations and rate sets, in one small file of the database
/// folder. Changes take effect in the tree at once and are saved only by `SaveXML`.
class clsZR3PreferencesDatabase : public clsXMLRecord {
public:
    using ReplacementsList = clsZR3List<clsZR3Replacement>;
    using RateSetsList = clsZR3List<clsZR3RateSet>;

    /// Loads the file of the database folder. The file is required: if it is missing or malformed, raises the object
    /// error. Then connects the switches of the log and the sounds.
    clsZR3PreferencesDatabase();
    ~clsZR3PreferencesDatabase();

    /// The root of the tree. Callers can then also change the content of the items' elements.
    pugi::xml_node XMLNode() const;

    void LoadXML(const QString &path);
    void SaveXML() const;
    void LoadElements();

    void RenderReplacements();
    const ReplacementsList::Collection &ReplacementsCollection() const { return m_replacements.collection(); }
    ReplacementsList::Pointer AddReplacement() { return m_replacements.add(); }
    void DeleteReplacement(int index) { m_replacements.remove(index); }
    ReplacementsList::Pointer Replacement(int index) const { return m_replacements.at(index); }

    void RenderRateSets();
    const RateSetsList::Collection &RateSetsCollection() const { return m_rateSets.collection(); }
    RateSetsList::Pointer AddRateSet() { return m_rateSets.add(); }
    void DeleteRateSet(int index) { m_rateSets.remove(index); }
    RateSetsList::Pointer RateSet(int index) const { return m_rateSets.at(index); }

    clsXMLText<"DefaultVATRate"> DefaultVATRate {*this};
    clsXMLBoolean<"AutoBackup"> AutoBackup {*this};
    clsXMLText<"AutoBackupPath"> AutoBackupPath {*this};
    clsXMLBoolean<"AutoDeleteBackups"> AutoDeleteBackups {*this};
    clsXMLBoolean<"AutoRefreshPreview"> AutoRefreshPreview {*this};
    clsXMLBoolean<"PlaySound"> PlaySound {*this};
    clsXMLBoolean<"Log"> Log {*this};

private:
    clsXMLElement m_root;
    ReplacementsList m_replacements;
    RateSetsList m_rateSets;
};
