#pragma once

#include "wordexport/document/clsPlainText.h"
#include "wordexport/document/clsWordBoldness.h"
#include "wordexport/document/clsWordCursor.h"
#include "wordexport/document/clsWordPackage.h"
#include "wordexport/document/clsWordTyped.h"
#include "wordexport/document/mdWordFit.h"
#include "wordexport/document/mdWordPlaces.h"

#include <map>
#include <memory>
#include <optional>
#include <vector>

class clsWordComposer;

/// An open document: its main story and the cursor with which it is edited.
class clsWordDocument {
public:
    /// Opens a document's file. Throws clsRunTimeError with the reason if it is unusable, naming the document by
    /// `shownName`.
    clsWordDocument(const QString &path, const QString &shownName);
    /// The same with the file's content already loaded.
    clsWordDocument(const QString &path, const QString &shownName, clsZipPackage content);
    ~clsWordDocument();

    const QString &path() const { return m_path; }
    /// The document's styles part.
    QByteArray styles();

    /// Fits the typed text, and returns the texts that are then printed differently from the template.
    std::vector<clsFittedText> fit();
    /// The number of paper pages when printed as a sheet of a joined document.
    int paperPages();
    /// Where the placeholders in its table cells are printed.
    std::vector<clsPlaceholderPlace> placeholderPlaces();
    /// The content for the document's file.
    const clsZipPackage &content() { return m_package.content(); }
    /// Writes the document back to its file.
    void save(clsZipPackage::Packing packing, bool toDisk);
    /// The position of the text in the last saved file; undefined if that was compressed.
    const clsTextPlace &savedText() const { return m_savedText; }

    void goToStart();
    void lineDown();
    void cellRight();
    void rowStart();

    /// Selects the first occurrence of a text in the story; if there is none, moves the cursor to the start.
    void findFirst(const QString &find);
    /// Removes all hidden occurrences of this text.
    void removeHidden(const QString &text);
    /// True if any of the selected text is bold; without a selection, if typed text would be.
    bool selectionIsBold();

    /// The weight and symbol font of the text typed next; both last until the cursor is moved.
    void setBold(bool bold) { m_bold = bold; }
    void setSymbolFont() { m_symbolFont = true; }
    /// Types over the selection; character 11 and line ends become line breaks within the paragraph.
    void typeText(const QString &text);
    void typePageBreak();
    void startParagraph();
    void backSpace();

    /// Appends another document's file with its own sections; the cursor is then at the end.
    void append(const QString &path, const QString &shownName, const clsPlainText *plain);

private:
    pugi::xml_node body();
    void changed() { m_package.setChanged(m_package.mainPart()); }
    void moved();
    void type(const QString &typed);
    void clearSelectedCell();
    std::vector<pugi::xml_node> &paragraphsThatMayHold(char c);
    pugi::xml_node formatForTyping(const pugi::xml_node &like, bool symbolFont);
    const clsWordBoldness &boldness();
    std::shared_ptr<const clsWordLooks> looks();

    QString m_path;
    clsWordPackage m_package;
    clsWordCursor m_cursor;
    std::optional<bool> m_bold;
    bool m_symbolFont = false;
    QString m_found; // the selected placeholder
    clsWordTyped m_typed;
    pugi::xml_document m_format; // holds the formatting of the text being typed
    std::map<char, std::vector<pugi::xml_node>> m_placeholders; // paragraphs in order, by a character that they contain
    std::shared_ptr<const clsWordBoldness> m_boldness;
    clsTextPlace m_savedText;
    std::unique_ptr<clsWordComposer> m_composer;
};
