// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace configtool {

/// A complete configuration for paper of `columns` characters, "32" or "40": the sample of the same
/// name. Empty for any other width.
QByteArray startingConfiguration(const QString &columns);

} // namespace configtool
