#include "ui/frmPreview.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrinterInfo>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>
#include <span>

#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/page_view.h"
#include "ui/screen_memory.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(900, 760);
constexpr int kMostCopies = 99;
constexpr int kPercents[] = {50, 75, 100, 150, 200, 300};
const QString kPrinterKey = QStringLiteral("frmPreview.printer");

QSpinBox* MakeNumber(const char* name, int most, int value) {
    auto* box = new QSpinBox;
    box->setObjectName(QLatin1String(name));
    box->setRange(1, most);
    box->setValue(value);
    return box;
}

}  // namespace

frmPreview::frmPreview(PageDocument document, QWidget* parent)
    : Screen(QStringLiteral("frmPreview"), QStringLiteral("打印预览->") + document.Title(), parent),
      document_(std::move(document)),
      pages_(new PageView(document_)),
      printers_(new QComboBox),
      copies_(MakeNumber("TxtCopies", kMostCopies, 1)),
      first_(MakeNumber("TxtFirst", document_.PageCount(), 1)),
      last_(MakeNumber("TxtLast", document_.PageCount(), document_.PageCount())),
      zoom_(new QComboBox),
      print_(MakeButton("CmdPrint", QStringLiteral("打印 &P"), this)),
      pdf_(MakeButton("CmdPdf", QStringLiteral("另存为PDF &S"), this)),
      place_(new QLabel),
      delivered_(new QLabel) {
    printers_->setObjectName(QStringLiteral("CmbPrinter"));
    zoom_->setObjectName(QStringLiteral("CmbZoom"));
    delivered_->setObjectName(QStringLiteral("LblTold"));
    zoom_->addItem(QStringLiteral("整页"));
    zoom_->addItem(QStringLiteral("页宽"));
    for (const int percent : kPercents) zoom_->addItem(QStringLiteral("%1%").arg(percent), percent);
    FillPrinters();
    LayOut();
    ShowPlace();

    OnSignal(print_, &QPushButton::clicked, this, [this] { Print(); });
    OnSignal(pdf_, &QPushButton::clicked, this, [this] { SavePdf(); });
    OnSignal(zoom_, &QComboBox::currentIndexChanged, this, [this] { Zoom(); });
    OnSignal(pages_, &PageView::CurrentPageChanged, this, [this] { ShowPlace(); });
    connect(pages_, &PageView::ZoomAsked, this, &frmPreview::StepZoom);
}

void frmPreview::LayOut() {
    QPushButton* exit = MakeButton("CmdExit", QStringLiteral("关闭 &E"), this);
    connect(exit, &QPushButton::clicked, this, &QDialog::reject);
    auto* commands = new QHBoxLayout;
    const auto labelled = [&](const QString& caption, QWidget* box) {
        commands->addWidget(new QLabel(caption));
        commands->addWidget(box);
    };
    labelled(QStringLiteral("打印机："), printers_);
    labelled(QStringLiteral("份数："), copies_);
    labelled(QStringLiteral("页码："), first_);
    labelled(QStringLiteral("至"), last_);
    commands->addWidget(print_);
    commands->addWidget(pdf_);
    commands->addStretch();
    commands->addWidget(exit);

    auto* status = new QHBoxLayout;
    status->addWidget(place_);
    status->addWidget(delivered_, 1);
    status->addWidget(new QLabel(QStringLiteral("显示比例：")));
    status->addWidget(zoom_);

    auto* whole = new QVBoxLayout(this);
    whole->addLayout(commands);
    whole->addWidget(pages_, 1);
    whole->addLayout(status);
    resize(kFirstSize);
}

void frmPreview::FillPrinters() {
    printers_->addItems(QPrinterInfo::availablePrinterNames());
    const bool hasPrinter = printers_->count() > 0;
    if (hasPrinter) {
        const QString usual = Remembered(kPrinterKey, QPrinterInfo::defaultPrinterName());
        printers_->setCurrentIndex(qMax(0, printers_->findText(usual)));
    } else {
        printers_->addItem(QStringLiteral("没有安装打印机"));
        print_->setToolTip(QStringLiteral("没有安装打印机，可以另存为PDF文件"));
    }
    for (QWidget* control :
         {static_cast<QWidget*>(printers_), static_cast<QWidget*>(copies_), static_cast<QWidget*>(print_)}) {
        control->setEnabled(hasPrinter);
    }
    (hasPrinter ? print_ : pdf_)->setDefault(true);
    (hasPrinter ? print_ : pdf_)->setFocus();
}

void frmPreview::ShowPlace() {
    place_->setText(
        QStringLiteral("第 %1 页，共 %2 页").arg(pages_->CurrentPage() + 1).arg(document_.PageCount()));
}

void frmPreview::Zoom() {
    if (zoom_->currentIndex() == 0) {
        pages_->SetZoom(PageView::Fit::Page);
    } else if (zoom_->currentIndex() == 1) {
        pages_->SetZoom(PageView::Fit::Width);
    } else {
        pages_->SetZoom(PageView::Fit::None, zoom_->currentData().toInt() / 100.0);
    }
    ShowPlace();
}

void frmPreview::StepZoom(int direction) {
    const int now = qRound(pages_->Scale() * 100);
    const auto percents = std::span(kPercents);
    const auto larger = std::find_if(percents.begin(), percents.end(), [&](int p) { return p > now; });
    const auto smaller = std::find_if(percents.rbegin(), percents.rend(), [&](int p) { return p < now; });
    if (direction > 0 && larger != percents.end()) zoom_->setCurrentIndex(zoom_->findData(*larger));
    if (direction < 0 && smaller != percents.rend()) zoom_->setCurrentIndex(zoom_->findData(*smaller));
}

void frmPreview::Print() {
    delivered_->clear();
    const auto [first, last] = ChosenPages();
    document_.Print(printers_->currentText(), copies_->value(), first, last);
    Remember(kPrinterKey, printers_->currentText());
    ShowDelivered(QStringLiteral("已送往打印机“%1”。").arg(printers_->currentText()));
}

void frmPreview::SavePdf() {
    const QString file = UseDialogs().SaveFileName(
        this,
        {QStringLiteral("pdf"), QStringLiteral("PDF 文件|*.pdf"), QStringLiteral("pdf"), document_.Title()});
    if (file.isEmpty()) return;
    delivered_->clear();  // what an earlier one left must not stand beside a failure
    const auto [first, last] = ChosenPages();
    document_.WritePdf(FromQt(file), first, last);
    ShowDelivered(QStringLiteral("已保存：%1").arg(file));
}

std::pair<int, int> frmPreview::ChosenPages() const {
    const auto [first, last] = std::minmax({first_->value(), last_->value()});
    return {first - 1, last - 1};
}

void frmPreview::ShowDelivered(const QString& text) {
    isDelivered_ = true;
    delivered_->setText(text);
}

}  // namespace kalvane
