#pragma once

#include <QByteArray>

#include <pugixml.hpp>

#include <optional>

/// Where the main part of a document stands in its file, not packed.
struct clsTextPlace {
    qint64 fileSize = 0;
    qint64 at = 0;
    qint64 size = 0;
};

/// What is known of a document whose text another one can take over as it stands, byte for byte: nothing in it bears an
/// identity or refers to anything but styles, and a paragraph comes last.
struct clsPlainText {
    QByteArray styles; ///< the document's, as bytes
    clsTextPlace place;
};

/// The body of such a document in three pieces, as bytes.
struct clsPlainBody {
    QByteArrayView blocks; ///< all but the end
    QByteArrayView end; ///< the last paragraph, and with it the one before it: their marks may be deleted
    QByteArrayView section; ///< the properties of the section that it ends with
};

/// True for a main part, as a tree, of that kind. What is typed into it makes no difference.
bool mdIsPlainText(const pugi::xml_document &mainPart);

/// Cuts a main part of that kind; nothing where the bytes are not what they should be.
std::optional<clsPlainBody> mdPlainBody(QByteArrayView mainPart);
