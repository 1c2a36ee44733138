// The small window that stays when the last collection closes, so that nobody is left with a
// program that cannot be seen: it offers to make or open a collection, or to quit.

#pragma once

#include <QWidget>

class QListWidget;

namespace tomely {

class DocumentController;

class StartWindow : public QWidget {
    Q_OBJECT

public:
    /// The documents must outlive the window.
    explicit StartWindow(DocumentController& documents);

    /// Shows the window with the recent collections as they are now.
    void present();

Q_SIGNALS:
    /// The person closed the window, which means to quit.
    void closedByUser();

    void preferencesRequested();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fillRecent();

    DocumentController& m_documents;
    QListWidget* m_recent = nullptr;
};

} // namespace tomely
