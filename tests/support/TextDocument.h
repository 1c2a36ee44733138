// The simplest document there is: its file is its text. What goes wrong in reading and writing is
// up to the test.

#pragma once

#include "platform/Document.h"

#include <functional>
#include <memory>

namespace tomely {

class TextDocument : public Document {
public:
    using Document::Document;

    void makeWindowControllers() override
    {
        if (makeWindow)
            addWindowController(makeWindow(*this));
    }

    QByteArray text;
    /// Makes the main window; a document without it has none.
    std::function<std::unique_ptr<DocumentWindow>(Document& document)> makeWindow;
    /// Called when the document is read; what it answers is why that fails.
    std::function<std::optional<DocumentFailure>(QByteArrayView bytes, const Progress& progress)>
        onRead;
    /// Called when the document is written; it may throw.
    std::function<void(const Progress& progress)> onWrite;

protected:
    QByteArray dataRepresentation(const Progress& progress) override
    {
        if (onWrite)
            onWrite(progress);
        return text;
    }

    std::optional<DocumentFailure> loadDataRepresentation(
        QByteArrayView bytes, const Progress& progress) override
    {
        if (onRead) {
            if (auto failure = onRead(bytes, progress))
                return failure;
        }
        text = bytes.toByteArray();
        return std::nullopt;
    }
};

} // namespace tomely
