// How many lines the layout counts for the first cell with text in each table row of a document:
//
//     fit_lines DOCUMENT
//
// Prints a number for each row with text. The rows are given a height of zero, so that the fit of the typed text
// reports the lines of every cell; the document itself is not written.

#include "wordexport/document/clsWordPackage.h"
#include "wordexport/document/mdWordFit.h"
#include "wordexport/document/mdWordXml.h"

#include <cstdio>

using pugi::xml_node;

namespace {

void prepare(const xml_node &table, clsWordTyped &typed)
{
    int number = 0;
    for (xml_node row : table.children("w:tr")) {
        xml_node height = row.child("w:trPr").child("w:trHeight");
        WordXml::setAttribute(height, "w:hRule", "exact");
        WordXml::setAttribute(height, "w:val", "1");
        xml_node cell = row.child("w:tc");
        while (cell && !cell.child("w:p").child("w:r"))
            cell = cell.next_sibling("w:tc");
        if (!cell)
            continue;
        const QString name = QString::number(number++);
        for (const xml_node &run : cell.child("w:p").children("w:r"))
            typed.typed(run, 0, name);
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: fit_lines DOCUMENT\n", stderr);
        return 2;
    }
    clsWordPackage package = clsWordPackage::fromFile(QString::fromLocal8Bit(argv[1]));
    const xml_node body = package.mainRoot().child("w:body");
    clsWordTyped typed;
    prepare(body.child("w:tbl"), typed);
    const auto looks = clsWordLooks::ofStyles(package.partBytes(package.relatedPart("styles")));
    for (const clsFittedText &text : mdFitTypedText(body, *looks, typed))
        std::printf("%s %d\n", qPrintable(text.placeholder), text.lines);
    return 0;
}
