// SPDX-License-Identifier: MIT
#pragma once

#include "tools/finding.h"

#include <array>

/// What the check of a request finds, each under a name that stays.
namespace requestcheck::codes {

using tools::Severity;
using namespace Qt::StringLiterals;

struct Code
{
    QLatin1StringView name;
    Severity severity;
};

// What stops the print run, or reaches the printer as another command.
constexpr Code xml{"xml"_L1, Severity::Error};
constexpr Code limit{"limit"_L1, Severity::Error};
constexpr Code noMethod{"no-method"_L1, Severity::Error};
constexpr Code unknownMethod{"unknown-method"_L1, Severity::Error};
constexpr Code lineFeed{"line-feed"_L1, Severity::Error};
constexpr Code controlCharacter{"control-character"_L1, Severity::Error};
constexpr Code endMark{"end-mark"_L1, Severity::Error};
constexpr Code fiscalQuote{"fiscal-quote"_L1, Severity::Error};
constexpr Code fiscalNumber{"fiscal-number"_L1, Severity::Error};
constexpr Code fiscalDepartment{"fiscal-department"_L1, Severity::Error};

// What is lost, or stands elsewhere than it should.
constexpr Code beforeMethod{"before-method"_L1, Severity::Warning};
constexpr Code secondMethod{"second-method"_L1, Severity::Warning};
constexpr Code unknownElement{"unknown-element"_L1, Severity::Warning};
constexpr Code unknownAttribute{"unknown-attribute"_L1, Severity::Warning};
constexpr Code unknownEntity{"unknown-entity"_L1, Severity::Warning};
constexpr Code duplicateAttribute{"duplicate-attribute"_L1, Severity::Warning};
constexpr Code missingAttribute{"missing-attribute"_L1, Severity::Warning};
constexpr Code attributeOrder{"attribute-order"_L1, Severity::Warning};
constexpr Code addressPart{"address-part"_L1, Severity::Warning};
constexpr Code cutDescription{"cut-description"_L1, Severity::Warning};
constexpr Code lineTooLong{"line-too-long"_L1, Severity::Warning};
constexpr Code notCentred{"not-centred"_L1, Severity::Warning};
constexpr Code notInEncoding{"not-in-encoding"_L1, Severity::Warning};
constexpr Code undecodable{"undecodable"_L1, Severity::Warning};

// What the configuration or the document method leaves away.
constexpr Code noConfiguration{"no-configuration"_L1, Severity::Note};
constexpr Code switchOff{"switch-off"_L1, Severity::Note};
constexpr Code printsNothing{"prints-nothing"_L1, Severity::Note};

/// All of them.
inline constexpr std::array all = {xml,
                                   limit,
                                   noMethod,
                                   unknownMethod,
                                   lineFeed,
                                   controlCharacter,
                                   endMark,
                                   fiscalQuote,
                                   fiscalNumber,
                                   fiscalDepartment,
                                   beforeMethod,
                                   secondMethod,
                                   unknownElement,
                                   unknownAttribute,
                                   unknownEntity,
                                   duplicateAttribute,
                                   missingAttribute,
                                   attributeOrder,
                                   addressPart,
                                   cutDescription,
                                   lineTooLong,
                                   notCentred,
                                   notInEncoding,
                                   undecodable,
                                   noConfiguration,
                                   switchOff,
                                   printsNothing};

} // namespace requestcheck::codes
