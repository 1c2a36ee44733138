// The list of recently used files that all programs of a desktop share, so that a file manager or a
// launcher offers a document that was worked on here. A courtesy: when the list cannot be read or
// written nobody is bothered. It must not know what kind of documents there are.

#pragma once

#include <QString>
#include <QStringList>
#include <QTimer>

namespace tomely {

class DesktopRecents {
public:
    /// How the program stands in the list.
    struct Program {
        QString name;
        QString command; // with %f where the path of the file belongs
        QString mimeType; // of its files
    };

    /// A list of more bytes is left alone: a person would notice that it is read.
    static constexpr qint64 largestList = 2 << 20;

    explicit DesktopRecents(Program program, const QString& listPath = defaultListPath());
    /// Writes what was not written yet.
    ~DesktopRecents();
    Q_DISABLE_COPY_MOVE(DesktopRecents)

    /// "recently-used.xbel" in the desktop's folder for data, by default ~/.local/share.
    static QString defaultListPath();

    /// A file was opened or saved just now. The list says so a moment later, since a window that
    /// comes up at the same time goes first, or when write() is called.
    void note(const QString& path);

    /// Takes out the files that no other program has used; a moment later too.
    void clear();

    /// Brings the list up to date now. What others wrote into it stays. It is not touched when it
    /// is damaged or too large, and made when it is missing, for the person's own eyes.
    void write();

private:
    const Program m_program;
    const QString m_listPath;
    QStringList m_noted; // since the last write, and since the last clear()
    bool m_isCleared = false;
    QTimer m_timer;
};

} // namespace tomely
