#pragma once

#include <QString>

class QWidget;

namespace kalvane {

class MaterialList;

// Commands on all materials of a list. `title` says whose they are.

/// Saves the materials in sight as a workbook.
void ExportMaterials(QWidget* screen, const MaterialList& list, const QString& title);

/// Takes materials from a workbook, after it was said what would change.
void ImportMaterials(QWidget* screen, MaterialList& list, const QString& title);

/// Changes the prices of the whole node by a percentage that is asked for.
void RaisePricesOf(QWidget* screen, MaterialList& list, const QString& title);

/// Prints the materials in sight with their prices.
void PrintMaterials(QWidget* screen, const MaterialList& list, const QString& title);

}  // namespace kalvane
