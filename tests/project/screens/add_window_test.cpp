#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

#include "project/screens/frmAddGCMC.h"
#include "support/screens/screen_kit.h"
#include "support/store_rows.h"
#include "ui/report_list.h"

namespace kalvane {
namespace {

using test::Find;

/// The screen for new windows of the sample project, shown without waiting.
class AddWindow : public test::ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        // A type without a drawing, at the end of the tree.
        for (const char* sql : {"Insert into 门窗厂家 (编号,名称) values(90,'Z')",
                                "Insert into 门窗系列 (厂家编号,编号,名称) values(90,90,'Z')",
                                "Insert into 门窗 (系列编号,编号,名称) values(90,90,'没有图')"}) {
            App().Main().Execute(sql);
        }
        screen_ = std::make_unique<frmAddGCMC>(nullptr);
        screen_->StartAdding("1");
        screen_->show();
        tree_ = Find<QTreeWidget>(screen_.get(), "Tvw");
        labels_ = Find<ReportList>(screen_.get(), "LvwBZ");
        tree_->setFocus();
    }
    void TearDown() override {
        screen_.reset();
        ScreenTest::TearDown();
    }

    /// Comes to the first node of that name, as with the arrow keys.
    void GoTo(const char* name) {
        QTreeWidgetItem* node = tree_->findItems(QString::fromUtf8(name), Qt::MatchRecursive).value(0);
        ASSERT_NE(node, nullptr) << name;
        tree_->scrollToItem(node);
        tree_->setCurrentItem(node);
    }

    std::unique_ptr<frmAddGCMC> screen_;
    QTreeWidget* tree_ = nullptr;
    ReportList* labels_ = nullptr;
};

TEST_F(AddWindow, TypeWithoutDrawingKeepsNoLabelsOfTheTypeBefore) {
    GoTo("单格固定窗");
    ASSERT_EQ(labels_->RowCount(), 2);
    GoTo("没有图");
    EXPECT_EQ(labels_->RowCount(), 0);
    ASSERT_EQ(dialogs_.shown.size(), 1);
    EXPECT_TRUE(dialogs_.shown[0].contains(QStringLiteral("还没有图"))) << dialogs_.shown[0].toStdString();

    // Such a window can be edited.
    frmAddGCMC edit(nullptr);
    edit.StartEditing({"C", "东", "1", "2", "3", "注", "1", "90", "1"});
    EXPECT_EQ(Find<QLineEdit>(&edit, "Text1(5)")->text(), QStringLiteral("注"));
    EXPECT_EQ(Find<ReportList>(&edit, "LvwBZ")->RowCount(), 2);  // B and H of the sample's first window
}

TEST_F(AddWindow, EnterHeldDownAddsNoWindows) {
    GoTo("单格固定窗");
    QTest::keyClick(tree_, Qt::Key_Return);
    const std::string before = test::Rows(App().Main(), "Select 编号 from 工程门窗");
    for (int i = 0; i < 30; ++i) {
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, QStringLiteral("\r"), /*autorep=*/true);
        QApplication::sendEvent(screen_->focusWidget(), &held);
    }
    EXPECT_EQ(test::Rows(App().Main(), "Select 编号 from 工程门窗"), before);
}

}  // namespace
}  // namespace kalvane
