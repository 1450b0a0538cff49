#include "ui/open_document.h"

#include <QDesktopServices>

#include "platform/files.h"
#include "support/screens/screen_kit.h"

namespace kalvane::test {
namespace {

TEST(OpenDocumentTest, AsksTheDesktopForAProgramFirst) {
    const TempFolder folder;
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QByteArray::fromStdString(folder.Path().string()) + ":" + path);
    const auto answer = [&](const std::string& script) {
        WriteFileAtomically(folder / "xdg-mime", "#!/bin/sh\n" + script);
        std::filesystem::permissions(folder / "xdg-mime", std::filesystem::perms::owner_all);
    };
    const QString file = QString::fromStdString((folder / "表.xlsx").string());
    WriteFileAtomically(folder / "表.xlsx", "表");
    QTextBrowser opener;  // stands in for the desktop's opener
    QDesktopServices::setUrlHandler("file", &opener, "setSource");
    answer("exit 0\n");
    EXPECT_FALSE(OpenDocument(file));
    EXPECT_TRUE(opener.source().isEmpty());
    answer(
        "[ \"$*\" = 'query default application/vnd.openxmlformats-officedocument.spreadsheetml.sheet' ]"
        " && echo calc.desktop\n");
    EXPECT_TRUE(OpenDocument(file));
    EXPECT_EQ(opener.source(), QUrl::fromLocalFile(file));
    QDesktopServices::unsetUrlHandler("file");
    qputenv("PATH", path);
}

}  // namespace
}  // namespace kalvane::test
