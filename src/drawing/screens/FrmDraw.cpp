#include "drawing/screens/FrmDraw.h"

#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QVBoxLayout>

#include "drawing/screens/command_box.h"
#include "drawing/screens/desk_buttons.h"
#include "drawing/screens/desk_files.h"
#include "drawing/screens/drawing_canvas.h"
#include "drawing/screens/frmInput.h"
#include "drawing/screens/frmOpenPicture.h"
#include "drawing/screens/frmSavePicEX.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/page_output.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(980, 690);
constexpr int kCoordinatesWidth = 140;

}  // namespace

FrmDraw::FrmDraw(QWidget* parent)
    : Screen(QStringLiteral("FrmDraw"), QStringLiteral("绘图"), parent),
      notice_(this),
      pic_(new DrawingCanvas(this)),
      txtCommand_(new CommandBox(this)),
      buttons_(new DeskButtons(this)),
      sbar_(new QStatusBar(this)),
      prompt_(new QLabel(this)),
      coordinates_(new QLabel(this)),
      recover_(MakeButton("CmdRecover", QStringLiteral("恢复上次未保存的图"), this)),
      desk_(*pic_, *this, *this, *this, notice_, App().folder),
      files_(desk_, this, [this](const std::string& text) { ShowPrompt(text); }) {
    txtCommand_->setObjectName(QStringLiteral("TxtCommand"));
    MakeStatusBar();
    LayOut();
    Connect();
    setAcceptDrops(true);
    resize(kFirstSize);
    pic_->setFocus();
    ShowState();
}

void FrmDraw::MakeStatusBar() {
    sbar_->setObjectName(QStringLiteral("SBAR"));
    prompt_->setObjectName(QStringLiteral("SBAR(1)"));
    coordinates_->setObjectName(QStringLiteral("SBAR(2)"));
    coordinates_->setMinimumWidth(kCoordinatesWidth);
    recover_->setAutoDefault(false);
    recover_->setFocusPolicy(Qt::NoFocus);
    sbar_->addWidget(prompt_, 1);
    sbar_->addPermanentWidget(recover_);
    sbar_->addPermanentWidget(coordinates_);
}

void FrmDraw::LayOut() {
    auto* command = new QHBoxLayout;
    auto* caption = new QLabel(QStringLiteral("命令："), this);
    caption->setBuddy(txtCommand_);
    txtCommand_->setPlaceholderText(QStringLiteral("命令或坐标：10,20　@5,0　@10<90"));
    command->addWidget(caption);
    command->addWidget(txtCommand_, 1);
    auto* drawing = new QVBoxLayout;
    drawing->addWidget(pic_, 1);
    drawing->addLayout(command);
    auto* body = new QHBoxLayout;
    body->addWidget(buttons_);
    body->addLayout(drawing, 1);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(8, 8, 8, 2);
    rows->addLayout(body, 1);
    rows->addWidget(sbar_);
}

void FrmDraw::Connect() {
    connect(buttons_, &DeskButtons::Chosen, this,
            [this](DeskCommand command) { Do([&] { desk_.Run(command); }); });
    connect(pic_, &DrawingCanvas::Pressed, this,
            [this](bool left, Point at) { Do([&] { desk_.PressMouse(left, at); }); });
    connect(pic_, &DrawingCanvas::Moved, this,
            [this](Point at) { Guarded(this, [&] { desk_.MoveMouse(at); }); });
    connect(txtCommand_, &CommandBox::Entered, this,
            [this](const QString& text) { Do([&] { desk_.RunCommand(FromQt(text)); }); });
    connect(txtCommand_, &CommandBox::Escaped, this, [this] { Do([&] { desk_.Run(DeskCommand::Cancel); }); });
    connect(buttons_, &DeskButtons::UndoAsked, this, [this] { Do([&] { desk_.Undo(); }); });
    connect(buttons_, &DeskButtons::RedoAsked, this, [this] { Do([&] { desk_.Redo(); }); });
    connect(buttons_, &DeskButtons::OpenAsked, this, [this] { Do([&] { files_.ChooseToOpen(); }); });
    connect(buttons_, &DeskButtons::SaveAsked, this, [this] { Do([&] { files_.ChooseToSave(); }); });
    connect(buttons_, &DeskButtons::DxfAsked, this, [this] { Do([&] { files_.ChooseDxf(); }); });
    connect(recover_, &QPushButton::clicked, this, [this] { Do([&] { desk_.Recover(); }); });
}

void FrmDraw::Do(const std::function<void()>& work) {
    Guarded(this, work);
    ShowState();
}

void FrmDraw::ShowState() {
    buttons_->ShowArmed(desk_.Picture().GetCurDraw());
    buttons_->ShowHistory(desk_.CanUndo(), desk_.CanRedo());
    recover_->setVisible(desk_.OffersRecovery());
}

void FrmDraw::showEvent(QShowEvent* event) {
    Screen::showEvent(event);
    if (gridShown_) return;
    gridShown_ = true;
    desk_.ShowGrid();
}

void FrmDraw::keyPressEvent(QKeyEvent* event) {
    const QString text = event->text();
    if (event->key() == Qt::Key_Escape) {
        Do([&] { desk_.Run(DeskCommand::Cancel); });
    } else if (!text.isEmpty() && text[0].isPrint()) {
        txtCommand_->StartWith(text);
    } else {
        Screen::keyPressEvent(event);
    }
}

void FrmDraw::dragEnterEvent(QDragEnterEvent* event) {
    if (!DeskFiles::DraggedFile(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void FrmDraw::dropEvent(QDropEvent* event) {
    const QString file = DeskFiles::DraggedFile(*event->mimeData());
    if (file.isEmpty()) return;
    event->acceptProposedAction();
    Do([&] { files_.Open(file); });
}

void FrmDraw::SetTitle(const std::string& title) {
    setWindowTitle(ToQt(title));
}

void FrmDraw::ChooseDrawing() {
    if (frmOpenPicture(this).exec() != QDialog::Accepted) return;
    const FieldSlots& slots = SharedFieldSlots();
    const std::string number = slots[0];
    const std::string name = slots[1];
    desk_.OpenDrawing(App().Main(), number, name);
}

void FrmDraw::SaveDrawing() {
    FieldSlots& slots = SharedFieldSlots();
    if (desk_.HasPlace(App().Main())) {
        desk_.SaveDrawing(App().Main());
    } else if (frmSavePicEX(this).exec() == QDialog::Accepted) {
        const std::string number = slots[0];
        const std::string name = slots[1];
        desk_.SaveNewDrawing(App().Main(), number, name);
    } else {
        desk_.LeaveUnnamed();
    }
    slots[0] = desk_.Identity().number;
    slots[1] = desk_.Identity().name;
}

void FrmDraw::PrintDrawing() {
    PrintDocument(this, windowTitle(), PageSetup(), [&](PageTarget& page) {
        desk_.Picture().PrintPic(page, kFrame, kFrame);
        page.EndDocument();
    });
}

void FrmDraw::Quit() {
    Leave();
}

void FrmDraw::ShowPrompt(const std::string& text) {
    prompt_->setText(ToQt(text));
}

void FrmDraw::ShowCoordinates(const std::string& text) {
    coordinates_->setText(ToQt(text));
}

std::string FrmDraw::AskText() {
    frmInput input(this);
    input.exec();
    return FromQt(input.Text());
}

}  // namespace kalvane
