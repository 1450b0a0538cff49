#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "page/report.h"
#include "platform/settings_store.h"
#include "store/connection.h"

namespace kalvane {

inline constexpr std::size_t kContractTextCount = 13;

/// The last of the texts, the other terms, may be empty; all others must be filled before a save.
inline constexpr std::size_t kRequiredContractTexts = 12;

/// The texts of a contract in the order of their columns T1 to T13: names, addresses and telephones, each of
/// the supplier and then of the buyer, and the seven terms.
using ContractTexts = std::array<std::string, kContractTextCount>;

/// What a contract is headed by: the workshop's name of the settings and "订货单".
std::string ContractHeading(const SettingsStore& settings);

/// The supplier's name, address and telephone as the settings have them, empty where they have none. The
/// other texts stay.
void FillSupplier(const SettingsStore& settings, ContractTexts& texts);

/// The saved contract of a project; none when there is none. Throws StoreError.
std::optional<ContractTexts> LoadContract(Connection& connection, std::string_view projectNumber);

/// Replaces the contract of a project. The row before is deleted first, so after a refusal there is none: the
/// StoreError says so. A text with a quote in it is refused.
void SaveContract(Connection& connection, std::string_view projectNumber, const ContractTexts& texts,
                  const std::string& heading);

/// drGCHT01, the contract as it was saved; only its captions when it never was. Throws StoreError.
Report ContractReport(Connection& connection, std::string_view projectNumber);

}  // namespace kalvane
