#pragma once

#include "host/dwg/objects/Fields.h"

namespace host::dwg {

/// Notes the extended data of one application, as an object has it, as tags from 1000 on. What is damaged ends it.
void noteExtension(Bytes bytes, Fields &fields);

/// Notes the data of an extension record: group codes with their values, each as long as its code says.
void noteRecordData(BitReader &data, Fields &fields);

} // namespace host::dwg
