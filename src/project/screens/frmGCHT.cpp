#include "project/screens/frmGCHT.h"

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "numeric/error.h"
#include "project/screens/project_papers.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(860, 700);
constexpr std::size_t kPartyBoxes = 6;
constexpr std::size_t kBoxesInRow = 2;
constexpr int kTermLines = 2;

QString BoxName(std::size_t index) {
    return QStringLiteral("Text1(%1)").arg(index);
}

}  // namespace

frmGCHT::frmGCHT(QWidget* parent)
    : EntryScreen(QStringLiteral("frmGCHT"), QStringLiteral("工程合同"), parent) {
    QPushButton* fill = MakeButton("cmdFill", QStringLiteral("填入信息 &F"), this,
                                   QStringLiteral("供方、地址和电话取自系统设置，已填写的会被替换"));
    QPushButton* print = MakeButton("CmdPrint", QStringLiteral("打    印 &P"), this,
                                    QStringLiteral("打印已存储的合同，界面上没有存储的内容不打印"));
    QPushButton* papers = MakeButton("CmdPrintAll", QStringLiteral("合同及门窗表 &L"), this,
                                     QStringLiteral("已存储的合同和本工程的门窗表，一份文件"));
    QPushButton* save = MakeButton("CmdSave", QStringLiteral("保存退出 &S"), this);
    QPushButton* exit = MakeButton("CmdExit", QStringLiteral("取消退出 &E"), this);
    auto* body = new QWidget(this);
    auto* rows = new QVBoxLayout(body);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(MakeParties());
    rows->addWidget(MakeTerms(), 1);
    LayOutAboveButtons(this, body, {fill, print, papers, save, exit});
    resize(kFirstSize);

    std::vector<QLineEdit*> lines;
    for (QWidget* box : boxes_) {
        quotes_.Watch(box);
        if (auto* line = qobject_cast<QLineEdit*>(box)) lines.push_back(line);
    }
    EnterWalks(lines);
    EnterMovesTo(lines.back(), boxes_[kPartyBoxes]);
    OnSignal(fill, &QPushButton::clicked, this, [this] { Fill(); });
    OnSignal(print, &QPushButton::clicked, this, [this] { Print(); });
    OnSignal(papers, &QPushButton::clicked, this, [this] { PrintWithWindows(); });
    OnSignal(save, &QPushButton::clicked, this, [this] { Save(); });
    OnSignal(exit, &QPushButton::clicked, this, [this] { Leave(); });
}

QWidget* frmGCHT::MakeParties() {
    const QString captions[] = {QStringLiteral("供方："), QStringLiteral("需方："), QStringLiteral("地址："),
                                QStringLiteral("地址："), QStringLiteral("电话："), QStringLiteral("电话：")};
    auto* parties = new QWidget(this);
    auto* grid = new QGridLayout(parties);
    grid->setContentsMargins(0, 0, 0, 0);
    for (std::size_t i = 0; i < kPartyBoxes; ++i) {
        boxes_[i] = MakeBox(BoxName(i), this);
        const auto row = static_cast<int>(i / kBoxesInRow);
        const auto column = static_cast<int>(i % kBoxesInRow) * 2;
        grid->addWidget(new QLabel(captions[i], parties), row, column);
        grid->addWidget(boxes_[i], row, column + 1);
    }
    return parties;
}

QWidget* frmGCHT::MakeTerms() {
    const QString captions[] = {QStringLiteral("1.塑钢品牌、产地及第列："),
                                QStringLiteral("2.五金件品牌及产地："),
                                QStringLiteral("3.纱窗玻璃颜色："),
                                QStringLiteral("4.质量要求及技术标准，供方对质量负责的条件及期限："),
                                QStringLiteral("5.数量及单价："),
                                QStringLiteral("6.结算方式及期限："),
                                QStringLiteral("7.其它事项：")};
    auto* terms = new QWidget(this);
    auto* rows = new QVBoxLayout(terms);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(2);
    for (std::size_t i = kPartyBoxes; i < boxes_.size(); ++i) {
        auto* box = new QPlainTextEdit(terms);
        box->setObjectName(BoxName(i));
        box->setTabChangesFocus(true);
        box->setMinimumHeight(kTermLines * box->fontMetrics().lineSpacing());
        rows->addWidget(new QLabel(captions[i - kPartyBoxes], terms));
        rows->addWidget(box, 1);
        boxes_[i] = box;
    }
    return terms;
}

void frmGCHT::SetProject(const Project& project) {
    project_ = project;
    ContractTexts texts;
    try {
        texts = LoadContract(App().Main(), project.number).value_or(ContractTexts());
    } catch (const Error&) {
        texts = {};  // the form opens empty
    }
    Show(texts);
    shown_ = Texts();
}

ContractTexts frmGCHT::Texts() const {
    ContractTexts texts;
    for (std::size_t i = 0; i < texts.size(); ++i) texts[i] = FromQt(TextOfBox(boxes_[i]));
    return texts;
}

void frmGCHT::Show(const ContractTexts& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (auto* line = qobject_cast<QLineEdit*>(boxes_[i])) {
            line->setText(ToQt(texts[i]));
        } else {
            static_cast<QPlainTextEdit*>(boxes_[i])->setPlainText(ToQt(texts[i]));
        }
    }
}

void frmGCHT::Fill() {
    ContractTexts texts = Texts();
    FillSupplier(*App().settings, texts);
    Show(texts);
}

void frmGCHT::Save() {
    const ContractTexts texts = Texts();
    for (std::size_t i = 0; i < kRequiredContractTexts; ++i) {
        if (texts[i].empty()) return TellAt(this, QStringLiteral("数据不能为空！"), boxes_[i]);
    }
    if (!quotes_.MaySave(this)) return;
    try {
        SaveContract(App().Main(), project_.number, texts, ContractHeading(*App().settings));
    } catch (const ColumnError& refusal) {
        FocusColumn(refusal.Column());
        throw;
    }
    accept();
}

void frmGCHT::FocusColumn(const std::string& column) {
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        if (column == "T" + std::to_string(i + 1)) boxes_[i]->setFocus();
    }
}

void frmGCHT::Print() {
    PrintContract(this, project_);
}

void frmGCHT::PrintWithWindows() {
    PrintContractAndWindows(this, project_);
}

}  // namespace kalvane
