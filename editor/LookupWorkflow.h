// How a look-up gets into an editor: it starts when a person has finished with an ISBN that was not
// looked up yet, and what it finds replaces what the controls show. The book itself is written on
// save, as after typing.

#pragma once

#include "editor/LookupServices.h"

#include <QObject>
#include <QString>

namespace Ui {
class BookEntryWindow;
}

namespace tomely {

class BookLookup;
class ImageWells;

class LookupWorkflow : public QObject {
    Q_OBJECT

public:
    /// The window with those controls and wells; all must outlive this.
    LookupWorkflow(QWidget& window, const Ui::BookEntryWindow& controls, ImageWells& wells,
        LookupServices services);

    /// Takes the ISBN that is shown as one that needs no look-up.
    void rememberISBN();

    /// Looks up the ISBN that is shown, unless it is the last one that was seen, but for hyphens
    /// and letter case, or the person wants no look-up of its own accord. Returns when the look-up
    /// has ended; this may be gone then.
    void isbnChanged();

    /// Looks a book up while `indicator` turns, and shows it in the editor; true when it was found.
    /// When it was not, a sheet on `window` says so, unless the person gave up. Anything may be
    /// gone afterwards, also this.
    bool lookUp(const QString& isbn, QWidget& indicator, QWidget& window);

Q_SIGNALS:
    /// A look-up has changed the texts, the title among them.
    void textsChanged();

private:
    void liveISBNLookup(const QString& isbn);
    void setLookupInfo(const BookLookup& lookup, UrlFetch& fetch);
    void showTexts(const BookLookup& lookup);
    void showCover(const BookLookup& lookup, UrlFetch& fetch);

    QWidget& m_window;
    const Ui::BookEntryWindow& m_controls;
    ImageWells& m_wells;
    LookupServices m_services;
    QString m_strPreviousISBN; // in its plain form; empty before any was seen
};

} // namespace tomely
