#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace kalvane {

// The commands of kalvane-batch. Each writes its result to standard output, UTF-8, fields separated by tabs,
// and throws Error with a text for standard error when it cannot. Messages of the optimisers go to standard
// error.

/// Prints the value of a formula as short text. A label is written NAME=VALUE.
void EvalCommand(const std::string& formula, const std::vector<std::string>& labels);

/// Options of the optimisers given on the command line; those that are not come from the settings store.
struct RunOptions {
    std::int16_t scheme = 1;  ///< 1 practical optimiser, 2 linear one
    std::optional<std::int16_t> CLC;
    std::optional<std::int16_t> LTC;
    std::optional<std::int16_t> CKK;
    std::optional<float> YHBL;
    std::optional<std::int16_t> NODES;
};

/// The commands that work on the stores of a folder; stores that are missing are made. One that can leave
/// something out, and says so on standard error, returns whether its result is whole.
class FolderCommands {
  public:
    explicit FolderCommands(std::filesystem::path folder);

    /// Prints one row per material line of each window: window, class, 名称, 规格, 长度, 宽, 数量, 单位.
    bool Expand(const std::string& project) const;
    /// Gathers all windows of the project and prints 优化数据.
    void Demand(const std::string& project) const;
    /// Gathers, lays out the bars of all materials and prints 优化结果, row by row.
    bool Plan(const std::string& project, const RunOptions& options) const;
    /// Lays out the bars of a .DDD file and prints 优化结果.
    bool Cut(const std::filesystem::path& demandFile, const std::string& name,
             const RunOptions& options) const;

  private:
    std::filesystem::path folder_;
};

}  // namespace kalvane
