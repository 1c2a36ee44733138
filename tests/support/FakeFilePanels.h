// File panels that nobody sees: what is asked for is recorded, and the test picks.

#pragma once

#include "platform/widgets/FilePanels.h"

#include <QList>

namespace tomely {

class FakeFilePanels : public FilePanels {
public:
    QString runModalOpenPanel(const FileType& type, const QString& folder) override
    {
        modals.append({type, folder});
        return picked;
    }

    void beginOpenPanel(QWidget* window, const FileType& type,
        std::function<void(const QStringList& paths)> answered, const QString& folder = {}) override
    {
        openPanels.append({window, type, std::move(answered), folder});
    }

    void beginSavePanel(QWidget* window, const FileType& type, const QString& suggestedPath,
        std::function<void(const QString& path)> answered) override
    {
        savePanels.append({window, type, suggestedPath, std::move(answered)});
    }

    struct ModalPanel {
        FileType type;
        QString folder;
    };

    struct OpenPanel {
        QWidget* window;
        FileType type;
        std::function<void(const QStringList& paths)> picked; // not called: the panel is cancelled
        QString folder;
    };

    struct SavePanel {
        QWidget* window;
        FileType type;
        QString suggestedPath;
        std::function<void(const QString& path)> picked; // an empty path: the panel is cancelled
    };

    QList<ModalPanel> modals;
    QList<OpenPanel> openPanels;
    QList<SavePanel> savePanels;
    QString picked; // what modal panels answer; empty: cancelled
};

} // namespace tomely
