// What the export sheets share: choices made with radio buttons, each of which carries its number
// as the property "tag".

#pragma once

class QButtonGroup;
class QGroupBox;

namespace tomely {

class ListEngine;

/// The radio buttons in a box as one choice, which the box owns; a button's id is its tag.
QButtonGroup* taggedButtons(QGroupBox& box);

/// Names the two buttons of a choice of books (see ExportFilter), with how many books each stands
/// for.
void showBookCounts(const QButtonGroup& filter, const ListEngine& engine);

} // namespace tomely
