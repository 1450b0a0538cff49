#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

#include "store/store_files.h"
#include "support/recording_notice.h"
#include "support/store_rows.h"
#include "support/temp_folder.h"

namespace kalvane::test {

/// A test with an empty main store in a folder of its own, and what the operator is shown.
class MainStoreTest : public testing::Test {
  protected:
    void Insert(std::initializer_list<std::string> rows) {
        for (const std::string& row : rows) store_->Execute("Insert into " + row);
    }
    std::string Rows(const std::string& sql) { return test::Rows(*store_, sql); }

    const TempFolder folder_;
    const std::filesystem::path file_ = folder_ / kMainStoreName;
    std::unique_ptr<Connection> store_ =
        (CreateStore(file_, StoreKind::Main), std::make_unique<Connection>(file_, StoreKind::Main));
    RecordingNotice notice_;
};

}  // namespace kalvane::test
