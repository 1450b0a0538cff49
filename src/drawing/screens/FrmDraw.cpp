#include "drawing/screens/FrmDraw.h"

#include <QDragEnterEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QShortcut>
#include <QStatusBar>
#include <QVBoxLayout>

#include "drawing/drawing_library.h"
#include "drawing/dxf_import.h"
#include "drawing/screens/command_box.h"
#include "drawing/screens/desk_buttons.h"
#include "drawing/screens/drawing_canvas.h"
#include "drawing/screens/frmInput.h"
#include "drawing/screens/frmOpenPicture.h"
#include "drawing/screens/frmSavePicEX.h"
#include "numeric/error.h"
#include "session/app_state.h"
#include "session/shared_slots.h"
#include "ui/command_buttons.h"
#include "ui/dialogs.h"
#include "ui/guard.h"
#include "ui/page_output.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr QSize kFirstSize(980, 690);
constexpr int kCoordinatesWidth = 140;
const QString kFilter = QStringLiteral("门窗图(*.MC)|*.Mc");
const QString kDxfFilter = QStringLiteral("DXF(*.DXF)|*.Dxf");
const QString kSuffix = QStringLiteral("MC");
const QString kDxfSuffix = QStringLiteral("DXF");
const QString kFolder = QStringLiteral("drawing");

bool HasSuffix(const QString& file, const QString& suffix) {
    return QFileInfo(file).suffix().compare(suffix, Qt::CaseInsensitive) == 0;
}

/// The one file of ours that is dragged; empty for anything else.
QString DraggedFile(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1) return {};
    const QString file = urls.front().toLocalFile();
    return HasSuffix(file, kSuffix) || HasSuffix(file, kDxfSuffix) ? file : QString();
}

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
      desk_(*pic_, *this, *this, *this, notice_, App().folder) {
    txtCommand_->setObjectName(QStringLiteral("TxtCommand"));
    MakeButtons();
    MakeStatusBar();
    LayOut();
    Connect();
    setAcceptDrops(true);
    resize(kFirstSize);
    pic_->setFocus();
    ShowState();
}

void FrmDraw::MakeButtons() {
    const auto add = [this](DeskCommand command, const char* name, const char16_t* caption, const char* icon,
                            const char16_t* toolTip) {
        buttons_->AddCommand(command, name, QString::fromUtf16(caption), QLatin1String(icon),
                             QString::fromUtf16(toolTip));
    };
    add(DeskCommand::Line, "Cmdline", u"直线(命令L)", "desk_line", u"连续画线，右键或 Esc 结束（L）");
    add(DeskCommand::Arrow, "CmdDir", u"箭头(命令A)", "desk_arrow", u"先箭尾，后箭头（A）");
    add(DeskCommand::Rectangle, "CmdRec", u"矩形(命令R)", "desk_rectangle", u"两个对角点（R）");
    add(DeskCommand::Dimension, "CmdDim", u"标注(命令D)", "desk_dimension",
        u"起点、终点，再定标注线的位置（D）");
    add(DeskCommand::Text, "CmdString", u"单行文字(命令T)", "desk_text", u"先位置，后文字（T）");
    add(DeskCommand::Arc, "CmdArc", u"画弧(命令-)", "desk_arc", u"起点、端点、方向点");
    add(DeskCommand::Delete, "CmdDEl", u"删除(命令E)", "desk_delete", u"删除框内有定位点的图元（E）");
    buttons_->AddGap();
    undo_ = buttons_->AddButton("CmdUndo", QStringLiteral("撤销"), QStringLiteral("desk_undo"),
                                QStringLiteral("撤销上一步（Ctrl+Z）"));
    redo_ = buttons_->AddButton("CmdRedo", QStringLiteral("重做"), QStringLiteral("desk_redo"),
                                QStringLiteral("重做撤销的一步（Ctrl+Y）"));
    add(DeskCommand::New, "CmdRefresh", u"刷新(命令C)", "desk_new", u"清空，开始新图（C）");
    add(DeskCommand::Redraw, "CmdRdraw", u"重生成(命令Redraw)", "desk_redraw", u"重画全图（Redraw）");
    buttons_->AddGap();
    add(DeskCommand::OpenFromLibrary, "CmdOpenEx", u"打开图库(命令Open)", "desk_open",
        u"把图库中的图加到当前图上（Open）");
    add(DeskCommand::SaveToLibrary, "CmdSaveEx", u"保存图库(命令Save)", "desk_save", u"保存到图库（Save）");
    QPushButton* open =
        buttons_->AddButton("CmdOpen", QStringLiteral("打开文件"), QStringLiteral("file_open"),
                            QStringLiteral("打开图形文件 (*.MC)"));
    QPushButton* save =
        buttons_->AddButton("CmdSave", QStringLiteral("保存文件"), QStringLiteral("file_save"),
                            QStringLiteral("保存为图形文件 (*.MC)，不含弧"));
    QPushButton* dxf =
        buttons_->AddButton("CmdImportDxf", QStringLiteral("导入DXF"), QStringLiteral("desk_import"),
                            QStringLiteral("用 DXF 文件的内容代替当前图"));
    add(DeskCommand::Print, "CmdPrint", u"打印(命令Print)", "desk_print", u"预览、打印或存为 PDF（Print）");
    buttons_->AddStretch();
    add(DeskCommand::Quit, "CmdExit", u"退出(命令Q)", "exit", u"关闭绘图窗口（Q）");

    const auto on = [this](QPushButton* button, void (FrmDraw::*work)()) {
        connect(button, &QPushButton::clicked, this, [this, work] { Do([&] { (this->*work)(); }); });
    };
    on(open, &FrmDraw::ChooseFile);
    on(save, &FrmDraw::ChooseFileToSave);
    on(dxf, &FrmDraw::ChooseDxf);
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
    const auto undo = [this] { Do([&] { desk_.Undo(); }); };
    const auto redo = [this] { Do([&] { desk_.Redo(); }); };
    connect(undo_, &QPushButton::clicked, this, undo);
    connect(redo_, &QPushButton::clicked, this, redo);
    const auto onKeys = [this](const char* keys, const auto& work) {
        auto* shortcut = new QShortcut(QKeySequence(QLatin1String(keys)), this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, work);
    };
    onKeys("Ctrl+Z", undo);
    onKeys("Ctrl+Y", redo);
    onKeys("Ctrl+Shift+Z", redo);
    connect(recover_, &QPushButton::clicked, this, [this] { Do([&] { desk_.Recover(); }); });
}

void FrmDraw::Do(const std::function<void()>& work) {
    Guarded(this, work);
    ShowState();
}

void FrmDraw::ShowState() {
    buttons_->ShowArmed(desk_.Picture().GetCurDraw());
    undo_->setEnabled(desk_.CanUndo());
    redo_->setEnabled(desk_.CanRedo());
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
    if (!DraggedFile(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void FrmDraw::dropEvent(QDropEvent* event) {
    const QString file = DraggedFile(*event->mimeData());
    if (file.isEmpty()) return;
    event->acceptProposedAction();
    Do([&] { HasSuffix(file, kDxfSuffix) ? ImportDxfFile(file) : OpenFile(file); });
}

void FrmDraw::ChooseFile() {
    const QString file = UseDialogs().OpenFileName(this, kFolder, kFilter);
    if (!file.isEmpty()) OpenFile(file);
}

void FrmDraw::OpenFile(const QString& file) {
    try {
        desk_.OpenFile(FromQt(file));
    } catch (const Error& error) {
        ShowPrompt(error.what());
    }
}

void FrmDraw::ChooseFileToSave() {
    const QString file = UseDialogs().SaveFileName(this, kFolder, kFilter, kSuffix, false);
    if (file.isEmpty()) return;
    if (QFileInfo::exists(file) &&
        !UseDialogs().AskOkCancel(this, QStringLiteral("文件已存在是否覆盖？"), QStringLiteral("保存文件"))) {
        return;
    }
    SaveFile(file);
}

void FrmDraw::SaveFile(const QString& file) {
    try {
        desk_.SaveFile(FromQt(file));
    } catch (const CodePageError&) {
        throw;  // told in a box: the text has to be changed
    } catch (const FileError& error) {
        ShowPrompt(error.what());
    }
}

void FrmDraw::ChooseDxf() {
    const QString file = UseDialogs().OpenFileName(this, kFolder, kDxfFilter);
    if (!file.isEmpty()) ImportDxfFile(file);
}

void FrmDraw::ImportDxfFile(const QString& file) {
    desk_.Replace([&](CPictire& picture) { ShowPrompt(DxfPrompt(ImportDxf(FromQt(file), picture))); });
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
    close();
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
