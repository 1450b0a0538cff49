// Texts that try to end a statement and run one of their own, in every text field of every screen that
// reaches a store.

#include "app/screens/frmUserMng.h"
#include "app/screens/kalvane_kernel.h"
#include "backup/screens/frmSaveFile.h"
#include "catalogue/catalogue_class.h"
#include "catalogue/screens/frmDatabase.h"
#include "drawing/screens/FrmDraw.h"
#include "optimise/screens/frmHandup.h"
#include "project/screens/frmMCGCGL.h"
#include "project/screens/frmOpenGC.h"
#include "support/screens/screen_kit.h"
#include "ui/node_tree.h"

namespace kalvane::test {
namespace {

const char* const kAttacks[] = {
    "1); delete from 工程; --",
    "1'); delete from 工程; --",
    "1'; delete from 工程; --",
    "1; delete from 工程",
    "'or'1'='1",
    "1';drop",
};

class StatementAttackTest : public ScreenTest {
  protected:
    StatementAttackTest() {
        QObject::connect(&closer_, &QTimer::timeout, [this] {
            auto* screen = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (pressed_ && screen != nullptr) screen->reject();
        });
        closer_.start(5);
    }

    /// Opens the screen again and again; each time one of its boxes holds an attack and the others a text
    /// that passes, and the screen is confirmed.
    void Attack(const char* name, const char* confirm, const std::function<void()>& open,
                const std::function<void(QDialog&)>& prepare = {}) {
        for (const char* attack : kAttacks) {
            qsizetype boxes = 1;
            for (qsizetype box = 0; box < boxes; ++box) {
                pressed_ = false;
                ModalScript()
                    .On(name,
                        [&](QDialog& screen) {
                            if (prepare) prepare(screen);
                            boxes = Fill(screen, box, attack);
                            tried_ = pressed_ = true;
                            Press(screen, confirm);
                        })
                    .Run(open);
                ExpectUnharmed(std::string(name) + ", box " + std::to_string(box) + ": " + attack);
            }
        }
        EXPECT_TRUE(std::exchange(tried_, false)) << name;
    }

    static qsizetype Fill(const QDialog& screen, qsizetype attacked, const char* attack) {
        QList<QLineEdit*> boxes;
        for (QLineEdit* box : screen.findChildren<QLineEdit*>()) {
            if (box->isEnabled() && !box->isReadOnly()) boxes << box;
        }
        for (QLineEdit* box : boxes) box->setText("77");
        if (attacked < boxes.size()) boxes[attacked]->setText(QString::fromUtf8(attack));
        return boxes.size();
    }

    void ExpectUnharmed(const std::string& what) {
        EXPECT_GE(std::stoi(Rows("Select count(*) from 工程")), 1) << what;
        EXPECT_EQ(Rows("Select count(*) from 门窗"), "30") << what;
        Connection users(folder_ / kUserStoreName, StoreKind::Users);
        EXPECT_EQ(test::Rows(users, "Select userPwd from user where userNm='Admin'").size(), 32U) << what;
        for (const QString& shown : std::exchange(dialogs_.shown, {}))
            EXPECT_FALSE(shown.endsWith('|')) << what;
    }

    bool tried_ = false;
    bool pressed_ = false;
    QTimer closer_;  ///< closes what comes up behind a confirmed screen: a result, or the screen once more
};

TEST_F(StatementAttackTest, ProjectsAndWindows) {
    frmMCGCGL projects(KalvaneKernel::Roads(), nullptr);
    Attack("frmInputGC", "OKButton", [&] { Press(projects, "CmdAdd"); });
    frmOpenGC::Open({"1", "", "示例工程", "", ""}, KalvaneKernel::Roads());
    frmOpenGC* windows = frmOpenGC::OfProject("1");
    Attack(
        "frmAddGCMC", "cmdAdd", [&] { Press(*windows, "CmdAdd"); },
        [](QDialog& screen) {
            auto* tree = Find<QTreeWidget>(&screen, "Tvw");
            QTreeWidgetItem* type = tree->topLevelItem(0);
            while (type->childCount() > 0) type = type->child(0);
            tree->setCurrentItem(type);
        });
    delete windows;
}

TEST_F(StatementAttackTest, Catalogue) {
    frmDatabase catalogue(nullptr);
    Attack(
        "frmInputCJ", "OKButton", [&] { Press(catalogue, "CmdAdd1"); },
        [](QDialog& screen) { Find<QComboBox>(&screen, "Combo1")->setCurrentIndex(1); });
    auto* tree = Find<NodeTree>(&catalogue, "Tvw");
    for (const char* category : {"2", "3", "4", "5"}) {
        QTreeWidgetItemIterator node(tree);
        while (NodeTree::Kind(*node) != category) ++node;
        tree->setCurrentItem(*node);
        Attack(ClassOfKind(category)->dialog, "OKButton", [&] { Press(catalogue, "CmdAdd2"); });
    }
    Attack("frmInputXL", "OKButton", [&] { Press(catalogue, "CmdAdd1"); });
    Attack("frmPrice", "OKButton", [&] { Press(catalogue, "cmdPrice"); });
}

TEST_F(StatementAttackTest, Users) {
    Attack(
        "frmUserMng", "cmdOpr(3)", [] { frmUserMng().exec(); },
        [](QDialog& screen) { Press(screen, "cmdOpr(0)"); });
}

TEST_F(StatementAttackTest, DrawingsAndTheirTexts) {
    FrmDraw desk(nullptr);
    desk.show();
    auto* command = Find<QLineEdit>(&desk, "TxtCommand");
    const auto run = [command](const char* text) {
        command->setText(QString::fromUtf8(text));
        QTest::keyClick(command, Qt::Key_Return);
    };
    Attack("frmSavePicEX", "OKButton", [&] {
        run("C");
        run("SAVE");
    });
    pressed_ = false;
    for (const char* attack : kAttacks) {
        run(attack);
        run("ESC");
        run("C");
        run("T");
        ModalScript()
            .On("frmInput",
                [&](QDialog& screen) {
                    SetText(screen, "Text1", attack);
                    Press(screen, "OKButton");
                })
            .Run([&] { run("10,10"); });
        ModalScript()
            .On("frmSavePicEX",
                [&](QDialog& screen) {
                    SetText(screen, "Text1", "图");
                    Press(screen, "OKButton");
                })
            .Run([&] { run("SAVE"); });
        ExpectUnharmed(attack);
    }
}

TEST_F(StatementAttackTest, ManualListsAndBackups) {
    App().optimise.CLC = 6000;
    Attack(
        "frmHandup", "OKButton", [] { frmHandup(nullptr).exec(); },
        [](QDialog& screen) {
            for (const char* attack : kAttacks) {
                SetText(screen, "TxtCD", attack);
                SetText(screen, "TxtSL", attack);
                Press(screen, "CmdAdd");
            }
        });
    Attack("frmSaveFile", "OKButton", [] { frmSaveFile(nullptr).exec(); });
}

}  // namespace
}  // namespace kalvane::test
