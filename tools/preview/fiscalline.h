// SPDX-License-Identifier: MIT
#pragma once

#include "tools/preview/printfile.h"

#include <vector>

/// The command lines of the fiscal printer, and the receipt lines that they stand for.
namespace preview {

/// FiscalItem, FiscalDiscount or FiscalPayment; nothing for a line that is none of them.
std::optional<LineKind> fiscalKind(CellsView line);

/// What the fiscal printer makes of a command line, on paper of `width` cells: the item's name with
/// quantity, price and department at the right, on a line of their own where they do not fit, and
/// an adjustment of the price; a discount; a payment. Amounts stand as the command has them, as
/// sums are the printer's to make. Nothing for any other line.
std::vector<Cells> receiptLines(CellsView command, int width);

} // namespace preview
