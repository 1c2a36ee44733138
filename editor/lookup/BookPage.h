// What source 2 answers: a book's page, in which texts stand between markers.

#pragma once

#include "editor/lookup/BookDetails.h"

#include <QString>
#include <QStringView>

namespace tomely {

/// Takes from the page what is still empty. The ISBN becomes the one that was asked for in any
/// case: where there is a page, there is a book.
void fillFromBookPage(QStringView page, const QString& isbn, BookDetails& details);

} // namespace tomely
