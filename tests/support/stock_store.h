#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "store/store_files.h"
#include "support/store_rows.h"
#include "support/temp_folder.h"
#include "warehouse/note_layout.h"

namespace kalvane::test {

/// A test with an empty warehouse in a folder of its own.
class StockStoreTest : public testing::Test {
  protected:
    static NoteLine Line(const std::string& code, const std::string& count,
                         const std::string& price = "2.5") {
        return {"料" + code, code, "支", price, count, "型材"};
    }
    static GoodsNote Note(const std::string& number, std::vector<NoteLine> lines) {
        return {number, "甲厂", "999", "生产", "P-7", "王", "2002-03-04", std::move(lines)};
    }
    std::string Rows(const std::string& sql) { return test::Rows(*store_, sql); }

    const TempFolder folder_;
    const std::filesystem::path file_ = folder_ / kStockStoreName;
    std::unique_ptr<Connection> store_ =
        (CreateStore(file_, StoreKind::Stock), std::make_unique<Connection>(file_, StoreKind::Stock));
};

}  // namespace kalvane::test
