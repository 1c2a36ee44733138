// The catalogue of list columns: which columns there are, how they are called, how wide they start
// and how the list is filtered by them. It is the vocabulary that list, filter, dialogs, printing
// and exports share.

#pragma once

#include "document/ColumnEntry.h"
#include "model/KeyText.h"

#include <map>
#include <vector>

namespace tomely {

using ColumnDictionary = KeyDictionary<ColumnEntry>;

/// Labels of the 18 custom fields by their column key.
using LabelDictionary = std::map<qint32, QString>;

/// "Custom Field 1" to "Custom Switch 8" under the keys 42 to 76.
LabelDictionary defaultCustomFieldLabels();

/// Adds every catalogue column that `columns` lacks, at its default place and width, and sets
/// names, filter types and centring of all of them; the labels name the custom ones. A column that
/// is there keeps its own position and width; columns with keys of their own stay as they are.
void initListColumns(ColumnDictionary& columns, const LabelDictionary& labels);

/// The part of it that concerns the custom fields.
void initListColumns_CustomFields(ColumnDictionary& columns, const LabelDictionary& labels);

/// The records that the list shows, from left to right: those at position 0, 1, 2 and so on. A gap
/// in the positions hides every column behind it. The pointers are good until a record is added.
std::vector<const ColumnEntry*> shownColumns(const ColumnDictionary& columns);

/// "Custom: " and the label: the name of a custom column where columns are chosen.
QString customSelectionName(const QString& label);

} // namespace tomely
