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

/// One open document: its main story and the cursor in it, on which all editing is done.
class clsWordDocument {
public:
    /// Opens a document's file. One that can't be worked with is a clsRunTimeError that says why, and names the
    /// document by the name that is shown.
    clsWordDocument(const QString &path, const QString &shownName);
    /// The same of a file whose content is at hand.
    clsWordDocument(const QString &path, const QString &shownName, clsZipPackage content);
    ~clsWordDocument();

    const QString &path() const { return m_path; }
    /// The document's styles, as bytes.
    QByteArray styles();

    /// Makes room for what was typed, and returns what is then printed otherwise than the template has it.
    std::vector<clsFittedText> fit();
    /// How many paper pages it takes when it is printed as a sheet of a joined document.
    int paperPages();
    /// Where the placeholders of its table cells are printed.
    std::vector<clsPlaceholderPlace> placeholderPlaces();
    /// What the document's file would hold.
    const clsZipPackage &content() { return m_package.content(); }
    /// Writes the document back to its file.
    void save(clsZipPackage::Packing packing, bool toDisk);
    /// Where the text stands in the file that was saved last; meaningless where that was packed.
    const clsTextPlace &savedText() const { return m_savedText; }

    void goToStart();
    void lineDown();
    void cellRight();
    void rowStart();

    /// Selects the first occurrence of a text in the story; where there is none, the cursor is at the start.
    void findFirst(const QString &find);
    /// Removes this text wherever it is hidden.
    void removeHidden(const QString &text);
    /// True when any of the selected text is bold; with nothing selected, when typed text would be.
    bool selectionIsBold();

    /// The weight and the symbol font of what is typed next; both last until the cursor is moved.
    void setBold(bool bold) { m_bold = bold; }
    void setSymbolFont() { m_symbolFont = true; }
    /// Types over the selection; character 11 and line ends are line breaks within the paragraph.
    void typeText(const QString &text);
    void typePageBreak();
    void startParagraph();
    void backSpace();

    /// Appends another document's file as sections of its own; the cursor is then at the end.
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
    QString m_found; // the placeholder that is selected
    clsWordTyped m_typed;
    pugi::xml_document m_format; // holds the formatting of the text that is being typed
    std::map<char, std::vector<pugi::xml_node>> m_placeholders; // paragraphs in order, by a character in them
    std::shared_ptr<const clsWordBoldness> m_boldness;
    clsTextPlace m_savedText;
    std::unique_ptr<clsWordComposer> m_composer;
};
