// Books as the look-up sources tell them, played by a server on this machine: what the sources
// answer, in the shape in which they do, with covers that tell each other apart by their sizes.

#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QSize>
#include <QString>

#include <array>

namespace tomely {

class LookupServer;
class UserDefaults;

/// One of the covers of a volume.
struct SceneCover {
    QLatin1StringView link; // its name in the record
    QSize size;
};

/// From the smallest to the largest.
inline constexpr std::array<SceneCover, 5> sceneCovers{{
    {QLatin1StringView("smallThumbnail"), {40, 60}},
    {QLatin1StringView("thumbnail"), {80, 120}},
    {QLatin1StringView("small"), {120, 180}},
    {QLatin1StringView("medium"), {200, 300}},
    {QLatin1StringView("large"), {400, 600}},
}};

/// Of the cover that source 2's page names.
inline constexpr QSize pageCoverSize{360, 540};

/// Paths and queries that the sources are asked for.
QByteArray viewTarget(const QString& isbn);
QByteArray volumeTarget(const QString& isbn);
QByteArray bookPageTarget(const QString& isbn);
QByteArray coverTarget(QLatin1StringView link);

/// Source 1's script text for an identifier.
QByteArray viewReply(const QByteArray& identifier);

/// Source 1's record of "The Grapes of Wrath" with all five covers, of which the addresses are
/// plain http, as the service tells them.
QJsonObject fullVolumeInfo(const LookupServer& server);

/// Both replies of source 1 for a volume, and the covers.
void serveVolume(LookupServer& server, const QString& isbn, const QJsonObject& volumeInfo);

/// Source 2's page of the same book, told a little differently, and its cover.
QByteArray bookPage(const LookupServer& server);
void serveBookPage(LookupServer& server, const QString& isbn);

/// Source 1 knows "The Grapes of Wrath" by that ISBN, with all that it tells of a book ...
void serveFullBook(LookupServer& server, const QString& isbn);
/// ... or by the authors A, B, C and D ...
void serveBookOfFourAuthors(LookupServer& server, const QString& isbn);
/// ... or without the large one of its covers ...
void serveBookWithoutLargeCover(LookupServer& server, const QString& isbn);
/// ... or without any ...
void serveBookWithoutCovers(LookupServer& server, const QString& isbn);
/// ... or with a title alone ...
void serveBookWithoutDetails(LookupServer& server, const QString& isbn);
/// ... or with the placeholder for its large cover.
void serveBookWithPlaceholder(LookupServer& server, const QString& isbn);

/// A picture that plays the service's placeholder, and its SHA-1 digest in base64.
QByteArray scenePlaceholder();
QString scenePlaceholderDigest();

/// Makes the server both sources of the program that has these preferences. Source 2 is asked only
/// when the preferences say so as well.
void askServer(UserDefaults& defaults, const LookupServer& server);

} // namespace tomely
