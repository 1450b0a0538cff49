#pragma once

#include <cstdint>
#include <string>

namespace kalvane {

class Notice;
class SettingsStore;

/// Options of the optimisers, in millimetres where lengths are meant.
struct OptimiseSettings {
    std::int16_t CLC = 0;     ///< stock length of a bar
    std::int16_t LTC = 0;     ///< end allowance, charged once per piece
    std::int16_t CKK = 0;     ///< kerf, charged twice per piece
    std::int32_t COUNT = 0;   ///< quantity allowed; stored and shown only
    float YHBL = 1;           ///< ratio at which the linear optimiser stops searching
    std::string SAVEPATH;     ///< always saved empty
    std::int16_t NODES = 20;  ///< most pieces the linear optimiser searches at one time

    /// What a piece occupies of a bar beyond its length. Throws NumericError on a 16-bit overflow.
    std::int16_t PieceAllowance() const;
};

/// Reads all seven keys. Those whose text is no number, or does not fit its width, keep their default and are
/// named to the operator.
OptimiseSettings ReadOptimiseSettings(const SettingsStore& store, Notice& notice);

/// Saves all seven keys, each number as trimmed text.
void WriteOptimiseSettings(SettingsStore& store, const OptimiseSettings& settings);

}  // namespace kalvane
