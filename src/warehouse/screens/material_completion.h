#pragma once

class QWidget;

namespace kalvane {

/// Completes name and 规格 in frmEnterData from the stock list and the catalogue, and fills the boxes that
/// are still empty when one of these materials is named: the unit, the kind and the last price.
void CompleteMaterials(QWidget* form);

}  // namespace kalvane
