// A collection document that is read from and written to bytes instead of files.

#pragma once

#include "document/BookListDocument.h"

namespace tomely {

class BytesDocument : public BookListDocument {
public:
    using BookListDocument::BookListDocument;

    std::optional<DocumentFailure> load(QByteArrayView bytes, const Progress& progress = {})
    {
        return loadDataRepresentation(bytes, progress);
    }

    QByteArray save() { return dataRepresentation({}); }
};

} // namespace tomely
