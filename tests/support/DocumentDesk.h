// A document controller with everything around it in the hands of the test: text documents in plain
// windows, recorded alerts and panels, and a folder that goes with it.

#pragma once

#include "platform/UserDefaults.h"
#include "platform/widgets/DocumentController.h"
#include "platform/widgets/WindowController.h"
#include "tests/support/FakeAlerts.h"
#include "tests/support/FakeFilePanels.h"
#include "tests/support/Files.h"
#include "tests/support/TextDocument.h"

#include <QCoreApplication>
#include <QTemporaryDir>

namespace tomely {

class DocumentDesk {
public:
    DocumentDesk() { qRegisterMetaType<Document*>("Document*"); } // for signal spies

    ~DocumentDesk() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    Q_DISABLE_COPY_MOVE(DocumentDesk)

    QString path(const QString& name) const { return m_folder.filePath(name); }

    /// A file in the folder; its path.
    QString file(const QString& name, const QByteArray& text = "text") const
    {
        samples::writeFile(path(name), text);
        return path(name);
    }

    /// An open, edited document of a file in the folder.
    TextDocument& edited(const QString& name)
    {
        auto& document = static_cast<TextDocument&>(*controller.openDocument(file(name)));
        document.text = "newer";
        document.changeDone();
        return document;
    }

    static QWidget* windowOf(const Document& document)
    {
        return qobject_cast<QWidget*>(document.mainWindow()->windowObject());
    }

private:
    std::unique_ptr<Document> makeDocument()
    {
        auto document = std::make_unique<TextDocument>();
        document->onRead = onRead;
        document->makeWindow = [](Document& made) {
            return std::make_unique<WindowController>(made);
        };
        return document;
    }

    QTemporaryDir m_folder;

public:
    /// What documents made from now on do when they are read.
    std::function<std::optional<DocumentFailure>(QByteArrayView bytes, const Progress& progress)>
        onRead;
    FakeAlerts alerts;
    FakeFilePanels panels;
    UserDefaults defaults{m_folder.filePath(QStringLiteral("Tomely.ini"))};
    DocumentController controller{{alerts, panels, defaults,
        {QStringLiteral("books"), QStringLiteral("Collections")}, [this] {
            return makeDocument();
        }}};
};

} // namespace tomely
