#include "app/CollectionFileType.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace tomely {

FileType collectionFileType()
{
    return {u"books"_s, QCoreApplication::translate("CollectionFileType", "Tomely Collections")};
}

} // namespace tomely
