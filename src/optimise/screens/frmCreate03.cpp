#include "optimise/screens/frmCreate03.h"

#include <QApplication>
#include <QProgressBar>
#include <QPushButton>

#include "app/app_state.h"
#include "optimise/run.h"
#include "optimise/screens/frmResult.h"
#include "optimise/screens/pick_lists.h"
#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/message_notice.h"
#include "ui/report_list.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(680, 460);

/// Keeps the operator off the screen while it works, with the pointer that says so.
class Busy {
  public:
    explicit Busy(QWidget* screen) : screen_(screen) {
        screen_->setEnabled(false);
        QApplication::setOverrideCursor(Qt::WaitCursor);
    }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
    ~Busy() {
        QApplication::restoreOverrideCursor();
        screen_->setEnabled(true);
    }

  private:
    QWidget* screen_;
};

}  // namespace

frmCreate03::frmCreate03(QWidget* parent)
    : EntryScreen(QStringLiteral("frmCreate03"), QStringLiteral("创建优化之步骤3---->选择材料"), parent),
      lists_(new PickLists(
          {QStringLiteral("规格")},
          {QStringLiteral("->"), QStringLiteral("<-"), QStringLiteral(">>"), QStringLiteral("<<")}, this)),
      progressBar_(new QProgressBar(this)) {
    progressBar_->setObjectName(QStringLiteral("ProgressBar"));
    progressBar_->setTextVisible(false);
    QSizePolicy room = progressBar_->sizePolicy();
    room.setRetainSizeWhenHidden(true);
    progressBar_->setSizePolicy(room);
    progressBar_->hide();
    QPushButton* next = MakeButton("CmdNext", QStringLiteral("&Y 优化"), this);
    next->setDefault(true);
    QPushButton* exit = MakeButton("Command1", QStringLiteral("&E 退出"), this);
    LayOutAboveButtons(this, lists_, {next, exit}, progressBar_);
    resize(kFirstSize);

    OnSignal(next, &QPushButton::clicked, this, [this] { Next(); });
    OnSignal(exit, &QPushButton::clicked, this, [this] { reject(); });
    Guarded(this, [this] { Load(); });
}

void frmCreate03::Load() {
    for (const std::string& material : ListMaterials(App().Main())) {
        lists_->Offered().AddRow({ToQt(material)});
    }
}

void frmCreate03::Next() {
    std::vector<std::string> materials;
    for (int row = 0; row < lists_->Chosen().RowCount(); ++row) {
        materials.push_back(FromQt(lists_->Chosen().Text(row, 0)));
    }
    if (!materials.empty()) Run(materials);
    frmResult(this).exec();
}

void frmCreate03::Run(const std::vector<std::string>& materials) {
    progressBar_->setRange(1, static_cast<int>(materials.size()) + 1);
    progressBar_->setValue(1);
    progressBar_->show();
    MessageNotice notice(this);
    {
        const Busy busy(this);
        RunOptimisation(App().Main(), App().optimise, App().YHScheme, materials, notice,
                        [this](const RunStage& stage) { ShowProgress(stage.material); });
    }
    progressBar_->hide();
}

void frmCreate03::ShowProgress(std::size_t material) {
    const int row = static_cast<int>(material);
    progressBar_->setValue(row + 2);
    if (App().YHScheme != 0) lists_->Chosen().SelectRow(row);
    // The screen repaints, but takes no input: the run must not be started twice.
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace kalvane
