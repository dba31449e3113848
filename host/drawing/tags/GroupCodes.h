#pragma once

namespace host::drawing {

// Group codes that mean the same in every record. What a code means in one kind of record stands where that kind is
// read.

constexpr int entryNameCode = 3;   ///< of a dictionary: the name of the entry whose handle follows
constexpr int paperSpaceCode = 67; ///< of an entity: not 0 in paper space
constexpr int subclassCode = 100;
constexpr int embeddedObjectCode = 101; ///< what follows, to the end of the record, belongs to an object within it
constexpr int groupCode = 102;          ///< begins a group with "{NAME" and ends it with "}"
constexpr int ownerCode = 330;
constexpr int layoutNameCode = 410;   ///< of an entity: the layout it stands in
constexpr int commentCode = 999;      ///< in no record: read over, and written back where it was
constexpr int firstXdataCode = 1000;  ///< from here on: extended data, at the end of a record
constexpr int applicationCode = 1001; ///< the application whose extended data follow
constexpr int xdataCode = -3;         ///< in lists of Lisp and filters: the extended data

} // namespace host::drawing
