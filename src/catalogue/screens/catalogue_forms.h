#pragma once

#include <QString>
#include <functional>

#include "catalogue/catalogue.h"

class QWidget;

namespace kalvane {

// The dialogs in which the catalogue is typed in. Each hands what was confirmed to `save` and is false when
// it was cancelled; what `save` throws is shown and leaves the dialog open.

using SaveMaker = std::function<void(const Maker& maker)>;
using SaveName = std::function<void(const std::string& name)>;
using SaveMaterial = std::function<void(const MaterialTexts& texts)>;

bool InputMaker(QWidget* parent, const QString& title, const Maker& maker, const SaveMaker& save);
bool InputSeries(QWidget* parent, const QString& title, const QString& name, const SaveName& save);
/// `texts` begin with those of the class's columns.
bool InputMaterial(QWidget* parent, const QString& title, const CatalogueClass& materialClass,
                   const MaterialTexts& texts, const SaveMaterial& save);
/// `save` is handed the price.
bool InputPrice(QWidget* parent, const QString& title, const SaveName& save);

}  // namespace kalvane
