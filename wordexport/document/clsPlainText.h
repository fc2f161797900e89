#pragma once

#include <QByteArray>

#include <pugixml.hpp>

#include <optional>

/// The position of a document's main part in its file, uncompressed.
struct clsTextPlace {
    qint64 fileSize = 0;
    qint64 at = 0;
    qint64 size = 0;
};

/// A document whose text can be appended to another byte for byte: it contains no identities, refers to nothing but
/// styles, and ends with a paragraph.
struct clsPlainText {
    QByteArray styles; ///< the document's styles part
    clsTextPlace place;
};

/// The body of such a document in three pieces.
struct clsPlainBody {
    QByteArrayView blocks; ///< all but the end
    QByteArrayView end; ///< the last paragraph and the one before it, whose marks may be deleted
    QByteArrayView section; ///< the properties of its last section
};

/// True for the tree of a main part of this kind. Typed text makes no difference.
bool mdIsPlainText(const pugi::xml_document &mainPart);

/// Splits a main part of this kind; nothing if the bytes are not as expected.
std::optional<clsPlainBody> mdPlainBody(QByteArrayView mainPart);
