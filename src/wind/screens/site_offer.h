#pragma once

class QLineEdit;

namespace kalvane {

class SettingsStore;

/// Offers the sites that were checked before in the box of the city, as it is typed or behind its arrow; one
/// that is chosen fills the pressure as well.
void OfferSites(const SettingsStore& settings, QLineEdit* city, QLineEdit* pressure);

}  // namespace kalvane
