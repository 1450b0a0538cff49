#include "output/screens/FrmGJB.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDate>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>

#include "numeric/error.h"
#include "output/sheet_trace.h"
#include "platform/settings_store.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/file_export.h"
#include "ui/guard.h"
#include "ui/message_notice.h"
#include "ui/page_output.h"
#include "ui/page_picture.h"
#include "ui/page_turner.h"
#include "ui/report_list.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(1080, 760);
constexpr QSize kPictureSize(420, 352);
constexpr QSizeF kDrawingPage(6200, 5200);  // twips; the drawing, and room for the values at its edge
const QString kTitle = QStringLiteral("生产构件表");
const PageSetup kPaper;
const PageSetup kScreenPaper{QPageSize::A4, QPageLayout::Portrait, {0, 0, 0, 0}};

const QString kHeadingMark = QStringLiteral("序号");

/// Caption of each box, and which of the sheet's values it shows.
struct HeadBox {
    const char* caption;
    std::size_t title;
};
constexpr HeadBox kHead[] = {{"工程名称", 0}, {"定货单位", 1}, {"图    名", 2},
                             {"合同编号", 3}, {"购件表号", 4}, {"制作尺寸", 5},
                             {"樘    数", 6}, {"日    期", 8}, {"说    明", 9}};
constexpr std::size_t kDateTitle = 8;

}  // namespace

void ShowSheets(const std::string& projectNumber, const std::string& windowNumber, QWidget* parent) {
    std::vector<WindowEntry> windows = ListWindows(App().Main(), projectNumber);
    int page = 1;
    for (std::size_t i = 0; i < windows.size(); ++i) {
        if (windows[i].number == windowNumber) page = static_cast<int>(i) + 1;
    }
    const QDate today = QDate::currentDate();
    SheetOrigin origin{projectNumber, App().settings->Read(kSettingsApplication, kSectionMain, "DW", ""),
                       SheetDate(today.year(), today.month(), today.day())};
    SheetSet sheets(App().Main(), SharedFieldSlots(), std::move(origin), std::move(windows));
    FrmGJB(std::move(sheets), page, parent).exec();
}

FrmGJB::FrmGJB(SheetSet sheets, int page, QWidget* parent)
    : Screen(QStringLiteral("FrmGJB"), kTitle, parent),
      sheets_(std::move(sheets)),
      turner_(new PageTurner({"上一页", "下一页", "txtPage"}, this)),
      picture_(new PagePicture(QStringLiteral("PicGJB"), this)),
      lvw_(new ReportList(QStringLiteral("lvw"), QStringList(SheetTable::kColumns, QString()), this)),
      keepsShape_(new QCheckBox(QStringLiteral("图形保持比例"), this)),
      note_(new QLabel(this)) {
    keepsShape_->setObjectName(QStringLiteral("chkBL"));
    note_->setObjectName(QStringLiteral("LblNote"));
    note_->setWordWrap(true);
    lvw_->KeepOrder();
    lvw_->setHeaderHidden(true);
    lvw_->setToolTip(QStringLiteral("双击一行，查看长度和数量是怎样算出的"));
    picture_->setMinimumSize(kPictureSize);
    QPushButton* print = MakeButton("CmdPrint", QStringLiteral("打印当前页"), this);
    QPushButton* printAll = MakeButton("CmdPrintAll", QStringLiteral("打印全部页"), this);
    QPushButton* printNext = MakeButton("CmdPrintNextAll", QStringLiteral("向下打印全部"), this);
    QPushButton* pdf = MakeButton("CmdPDF", QStringLiteral("全部存为PDF"), this,
                                  QStringLiteral("本工程的全部构件表存成一个PDF文件"));
    QPushButton* exit = MakeButton("CmdExit", QStringLiteral("退出 &E"), this);

    auto* left = new QVBoxLayout;
    left->addWidget(picture_, 1);
    left->addWidget(keepsShape_);
    left->addWidget(MakeHead());
    auto* body = new QHBoxLayout;
    body->addLayout(left);
    body->addWidget(lvw_, 1);
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(body, 1);
    rows->addWidget(note_);
    QHBoxLayout* commands =
        ButtonRow({turner_->Previous(), turner_->Next(), print, printAll, printNext, pdf, exit});
    commands->insertWidget(0, turner_->Box());
    rows->addLayout(commands);
    resize(kFirstSize);

    OnSignal(turner_, &PageTurner::Turned, this, [this] { ShowPage(); });
    OnSignal(keepsShape_, &QCheckBox::toggled, this, [this] { ShowPage(); });
    OnSignal(lvw_, &ReportList::itemDoubleClicked, this, [this] { Explain(); });
    OnSignal(print, &QPushButton::clicked, this, [this] { Print(turner_->Page(), turner_->Page()); });
    OnSignal(printAll, &QPushButton::clicked, this, [this] { Print(1, turner_->Count()); });
    OnSignal(printNext, &QPushButton::clicked, this, [this] { Print(turner_->Page(), turner_->Count()); });
    OnSignal(pdf, &QPushButton::clicked, this, [this] { SavePdf(); });
    OnSignal(exit, &QPushButton::clicked, this, [this] { Leave(); });
    turner_->Start(sheets_.PageCount(), page);
    ShowPage();
}

QWidget* FrmGJB::MakeHead() {
    auto* head = new QWidget(this);
    auto* form = new QFormLayout(head);
    form->setContentsMargins(0, 0, 0, 0);
    for (const HeadBox& each : kHead) {
        QLineEdit* box = MakeBox(QStringLiteral("Text1(%1)").arg(boxes_.size()), head);
        box->setReadOnly(true);
        boxes_.push_back(box);
        form->addRow(QString::fromUtf8(each.caption), box);
    }
    return head;
}

SheetOptions FrmGJB::Options() const {
    return {keepsShape_->isChecked(), true};
}

void FrmGJB::ShowPage() {
    const WorkedOutSheet sheet = sheets_.Sheet(turner_->Page());
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const std::size_t title = kHead[i].title;
        boxes_[i]->setText(title == kDateTitle
                               ? QLocale().toString(QDate::currentDate(), QLocale::ShortFormat)
                               : ToQt(sheet.page.titles[title]));
        boxes_[i]->setCursorPosition(0);
    }
    QList<QStringList> rows;
    for (int row = 1; row <= sheet.page.rowCount; ++row) {
        QStringList cells;
        for (int column = 1; column <= SheetTable::kColumns; ++column) {
            cells << ToQt(sheet.page.table.Cell(column, row));
        }
        rows << cells;
    }
    lvw_->Clear();
    lvw_->AddRows(rows);
    QFont bold = lvw_->font();
    bold.setBold(true);
    for (int row = 0; row < rows.size(); ++row) {
        if (rows[row][0] != kHeadingMark) continue;
        for (int column = 0; column < SheetTable::kColumns; ++column) {
            lvw_->topLevelItem(row)->setFont(column, bold);
        }
    }

    const auto paint = [&](PageTarget& page) {
        MessageNotice notice(this);
        PaintSheetDrawing(page, App().Main(), sheet, Options(), notice);
    };
    picture_->Show(std::make_shared<PageDocument>(kTitle, kScreenPaper, paint), 0, kDrawingPage);

    QStringList failures;
    for (const std::string& failure : sheet.failures) failures << ToQt(failure);
    note_->setVisible(!failures.isEmpty());
    note_->setToolTip(failures.join(QLatin1Char('\n')));
    note_->setText(QStringLiteral("有 %1 处不能算出，纸上是空格：%2%3")
                       .arg(failures.size())
                       .arg(failures.value(0), failures.size() > 1 ? QStringLiteral(" ……") : QString()));
}

void FrmGJB::Explain() {
    const int row = lvw_->SelectedRow();
    if (row < 0) return;
    const WindowEntry& window = sheets_.Windows()[static_cast<std::size_t>(turner_->Page()) - 1];
    const std::string account = TraceSheetRow(App().Main(), window, row + 1);
    if (!account.empty()) Tell(this, ToQt(account));
}

void FrmGJB::Print(int first, int last) {
    PrintDocument(this, kTitle, kPaper, [&](PageTarget& page) {
        MessageNotice notice(this);
        try {
            sheets_.Print(page, first, last, Options(), notice);
        } catch (const Error& failure) {
            Tell(this, ToQt(failure.what()) + QStringLiteral("\n只打印到这里为止的页。"));
        }
    });
}

void FrmGJB::SavePdf() {
    const QString name = boxes_[0]->text() + QStringLiteral("构件表");
    ExportPdf(this, QStringLiteral("sheets"), name, [&](const std::filesystem::path& file) {
        const auto paint = [&](PageTarget& page) {
            MessageNotice notice(this);
            sheets_.Print(page, 1, sheets_.PageCount(), Options(), notice);
        };
        PageDocument(name, kPaper, paint).WritePdf(file);
    });
}

}  // namespace kalvane
