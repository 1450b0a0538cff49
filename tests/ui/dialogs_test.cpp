// The real dialogs, with the operator's hand on their buttons.

#include "ui/dialogs.h"

#include "platform/files.h"
#include "support/screens/screen_kit.h"

namespace kalvane::test {
namespace {

class DialogsTest : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        SetDialogs(nullptr);
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }

    static ModalScript::Work Press(QMessageBox::StandardButton button, const QString& caption) {
        return [button, caption](QDialog& screen) {
            auto* box = qobject_cast<QMessageBox*>(&screen);
            ASSERT_NE(box, nullptr);
            ASSERT_NE(box->button(button), nullptr);
            EXPECT_EQ(box->button(button)->text(), caption);
            box->button(button)->click();
        };
    }
    static ModalScript::Work Choose(const QString& file) {
        return [file](QDialog& screen) {
            auto* dialog = qobject_cast<QFileDialog*>(&screen);
            ASSERT_NE(dialog, nullptr);
            Find<QLineEdit>(dialog, "fileNameEdit")->setText(file);
            QMetaObject::invokeMethod(dialog, "accept");
        };
    }
};

TEST_F(DialogsTest, QuestionsAreAskedInChineseAndTextsShownPlainly) {
    const struct {
        bool yesNo;
        QMessageBox::StandardButton press;
        const char* caption;
        bool answer;
    } cases[] = {
        {true, QMessageBox::Yes, "是", true},
        {true, QMessageBox::No, "否", false},
        {false, QMessageBox::Ok, "确定", true},
        {false, QMessageBox::Cancel, "取消", false},
    };
    for (const auto& c : cases) {
        ModalScript().On("", Press(c.press, QString::fromUtf8(c.caption))).Run([&] {
            const QString text = "<b>真的吗？";
            EXPECT_EQ(c.yesNo ? Ask(nullptr, text)
                              : UseDialogs().AskOkCancel(nullptr, text, PromptTitle(), Dialogs::Answer::No),
                      c.answer)
                << c.caption;
        });
    }
    ModalScript()
        .On("",
            [](QDialog& screen) {
                auto* box = qobject_cast<QMessageBox*>(&screen);
                EXPECT_EQ(box->textFormat(), Qt::PlainText);
                EXPECT_EQ(box->icon(), QMessageBox::Critical);
                EXPECT_EQ(box->windowTitle(), "KalvaneV7.0");
            })
        .Run([] { UseDialogs().Message(nullptr, "a<b", {}, NoticeIcon::Error); });
}

TEST_F(DialogsTest, SavingAsksBeforeItOverwrites) {
    std::filesystem::create_directory(folder_ / "plans");
    WriteFileAtomically(folder_ / "plans/old.DDD", "old");
    const QString filter = "需求文件|*.DDD";
    const auto save = [&](bool asks) {
        return UseDialogs().SaveFileName(nullptr, {"plan", filter, "DDD", "甲/乙", asks});
    };
    ModalScript()
        .On("QFileDialog", Choose(InFolder("plans/old")))
        .On("", Press(QMessageBox::No, "否"))
        .On("QFileDialog", Choose(InFolder("plans/new")))
        .Run([&] { EXPECT_EQ(save(true), InFolder("plans/new.DDD")); });
    ModalScript().On("QFileDialog", Choose(InFolder("plans/old.DDD"))).Run([&] {
        EXPECT_EQ(save(false), InFolder("plans/old.DDD"));
    });
}

}  // namespace
}  // namespace kalvane::test
