// The addresses that a look-up asks, all by https. Whatever an ISBN, an identifier or a key holds,
// it stays one part of the address that it is put into: it cannot name another host or path. An
// address is empty when its host is not "name" or "name:port", or when what goes into its path is
// "." or
// "..", which would change it.

#pragma once

#include <QString>
#include <QUrl>

namespace tomely {

/// Of source 1: the text that holds the identifier of a volume.
QUrl viewAddress(const QString& host, const QString& isbn);

/// Of source 1: the record of a volume. Without a query when the key is empty.
QUrl volumeAddress(const QString& host, const QString& identifier, const QString& serviceKey);

/// Of source 2: a book's page.
QUrl bookPageAddress(const QString& host, const QString& isbn);

} // namespace tomely
