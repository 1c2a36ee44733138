// The designs themselves. Each fills the page it is given; CoverArtist chooses the colours and adds
// what every book has.

#pragma once

namespace tomely {

struct CoverPage;

void drawLabelCover(CoverPage& page);
void drawInitialCover(CoverPage& page);
void drawOrnamentCover(CoverPage& page);
void drawSplitCover(CoverPage& page);
void drawGridCover(CoverPage& page);
void drawShapesCover(CoverPage& page);

void drawHillsCover(CoverPage& page);
void drawWavesCover(CoverPage& page);
void drawStarsCover(CoverPage& page);
void drawSunburstCover(CoverPage& page);
void drawStripesCover(CoverPage& page);

} // namespace tomely
