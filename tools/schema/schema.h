// SPDX-License-Identifier: MIT
#pragma once

#include "tools/command.h"

/// `zentaro schema`: the form of print requests, for editors and validators.
namespace schema {

/// A RELAX NG schema of requests for the document at `method` of documentMethods, or for any (-1):
/// what elements it reads, in any order and nesting, and their attributes. What is wanted only
/// under a setting may be missing; elements without attributes may group others. In the XML syntax
/// or the compact one.
QString requestSchema(qsizetype method, bool isCompact);

int run(const tools::Call &call);

} // namespace schema
