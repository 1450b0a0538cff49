#include "output/screens/FrmEasyGJBReport.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/file_export.h"
#include "ui/guard.h"
#include "ui/message_notice.h"
#include "ui/page_output.h"
#include "ui/page_picture.h"
#include "ui/page_turner.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(900, 760);
const QString kTitle = QStringLiteral("门窗简料单");
/// The frame goes from 5 to 201 mm: these margins put it in the middle of the sheet.
const PageSetup kPaper{QPageSize::A4, QPageLayout::Portrait, {2, 5, 2, 5}};

QString LeftOutText(const std::vector<LeftOutWindow>& windows) {
    QStringList names;
    for (const LeftOutWindow& window : windows) {
        names << ToQt(window.name) + QStringLiteral("（%1）").arg(ToQt(window.reason));
    }
    return QStringLiteral("没有列入：") + names.join(QStringLiteral("、"));
}

}  // namespace

void ShowShortTable(std::span<const WindowEntry> windows, const std::string& projectName, QWidget* parent) {
    if (windows.empty()) {
        Tell(parent, QStringLiteral("构件门窗为空！"));
        return;
    }
    ShortTable made = MakeShortTable(App().Main(), SharedFieldSlots(), projectName, windows);
    if (made.table.Pages().empty()) {
        Tell(parent, QStringLiteral("无可购件数据！"));
        return;
    }
    FrmEasyGJBReport(std::move(made), parent).exec();
}

FrmEasyGJBReport::FrmEasyGJBReport(ShortTable made, QWidget* parent)
    : Screen(QStringLiteral("FrmEasyGJBReport"), QStringLiteral("预览简表"), parent),
      made_(std::move(made)),
      document_(std::make_shared<PageDocument>(kTitle, kPaper,
                                               [this](PageTarget& page) {
                                                   MessageNotice notice(this);
                                                   made_.table.PrintPageAll(page, App().Main(), notice);
                                               })),
      turner_(new PageTurner({"上一页&N", "下一页&L", "TxtPage", true}, this)),
      picture_(new PagePicture(QStringLiteral("PicGJB"))) {
    QPushButton* print = MakeButton("CmdPrint", QStringLiteral("打印当前&P"), this);
    QPushButton* printAll = MakeButton("Command1", QStringLiteral("打印全部 &A"), this);
    QPushButton* pdf = MakeButton("CmdPDF", QStringLiteral("另存为PDF"), this);
    QPushButton* exit = MakeButton("CmdExit", QStringLiteral("退出&E"), this);
    picture_->setFixedSize((document_->SheetSize() / kTwipsPerPixel).toSize());
    auto* surface = new QScrollArea(this);
    surface->setObjectName(QStringLiteral("Picture1"));
    surface->setAlignment(Qt::AlignHCenter);
    surface->setWidget(picture_);
    surface->horizontalScrollBar()->setObjectName(QStringLiteral("HS"));
    surface->verticalScrollBar()->setObjectName(QStringLiteral("VS"));
    auto* leftOut = new QLabel(LeftOutText(made_.leftOut), this);
    leftOut->setObjectName(QStringLiteral("LblNote"));
    leftOut->setWordWrap(true);
    leftOut->setVisible(!made_.leftOut.empty());

    auto* rows = new QVBoxLayout(this);
    rows->addWidget(surface, 1);
    rows->addWidget(leftOut);
    QHBoxLayout* commands = ButtonRow({turner_->Previous(), turner_->Next(), print, printAll, pdf, exit});
    commands->insertWidget(0, turner_->Box());
    rows->addLayout(commands);
    resize(kFirstSize);

    OnSignal(turner_, &PageTurner::Turned, this, [this] { ShowPage(); });
    OnSignal(print, &QPushButton::clicked, this, [this] { PrintPage(); });
    OnSignal(printAll, &QPushButton::clicked, this, [this] { PrintAll(); });
    OnSignal(pdf, &QPushButton::clicked, this, [this] { SavePdf(); });
    OnSignal(exit, &QPushButton::clicked, this, [this] { Leave(); });
    turner_->Start(document_->PageCount(), 1);
    ShowPage();
}

void FrmEasyGJBReport::ShowPage() {
    picture_->Show(document_, turner_->Page() - 1, document_->SheetSize());
}

void FrmEasyGJBReport::PrintPage() {
    PrintDocument(this, kTitle, kPaper, [this](PageTarget& page) {
        MessageNotice notice(this);
        made_.table.PrintPage(page, App().Main(), notice, turner_->Page());
    });
}

void FrmEasyGJBReport::PrintAll() {
    PrintDocument(this, kTitle, kPaper, [this](PageTarget& page) {
        MessageNotice notice(this);
        made_.table.PrintPageAll(page, App().Main(), notice);
    });
}

void FrmEasyGJBReport::SavePdf() {
    ExportPdf(this, QStringLiteral("sheets"), ToQt(made_.table.ProjectName) + kTitle,
              [this](const std::filesystem::path& file) { document_->WritePdf(file); });
}

}  // namespace kalvane
