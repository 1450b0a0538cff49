#include "drawing/screens/desk_buttons.h"

#include <QIcon>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/command_buttons.h"

namespace kalvane {
namespace {
constexpr int kGap = 8;
constexpr int kIcon = 20;
}  // namespace

DeskButtons::DeskButtons(QWidget* parent) : QWidget(parent), column_(new QVBoxLayout(this)) {
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(2);
    setStyleSheet(QStringLiteral("QPushButton { text-align: left; padding: 2px 8px; }"));
    AddTools();
    column_->addSpacing(kGap);
    AddEdits();
    column_->addSpacing(kGap);
    AddFiles();
    column_->addStretch();
    AddCommand(DeskCommand::Quit, "CmdExit", QStringLiteral("退出(命令Q)"), "exit",
               QStringLiteral("关闭绘图窗口（Q）"));
}

void DeskButtons::AddTools() {
    AddCommand(DeskCommand::Line, "Cmdline", QStringLiteral("直线(命令L)"), "desk_line",
               QStringLiteral("连续画线，右键或 Esc 结束（L）"));
    AddCommand(DeskCommand::Arrow, "CmdDir", QStringLiteral("箭头(命令A)"), "desk_arrow",
               QStringLiteral("先箭尾，后箭头（A）"));
    AddCommand(DeskCommand::Rectangle, "CmdRec", QStringLiteral("矩形(命令R)"), "desk_rectangle",
               QStringLiteral("两个对角点（R）"));
    AddCommand(DeskCommand::Dimension, "CmdDim", QStringLiteral("标注(命令D)"), "desk_dimension",
               QStringLiteral("起点、终点，再定标注线的位置（D）"));
    AddCommand(DeskCommand::Text, "CmdString", QStringLiteral("单行文字(命令T)"), "desk_text",
               QStringLiteral("先位置，后文字（T）"));
    AddCommand(DeskCommand::Arc, "CmdArc", QStringLiteral("画弧(命令-)"), "desk_arc",
               QStringLiteral("起点、端点、方向点"));
    AddCommand(DeskCommand::Delete, "CmdDEl", QStringLiteral("删除(命令E)"), "desk_delete",
               QStringLiteral("删除框内有定位点的图元（E）"));
}

void DeskButtons::AddEdits() {
    undo_ = AddButton(&DeskButtons::UndoAsked, "CmdUndo", QStringLiteral("撤销"), "desk_undo",
                      QStringLiteral("撤销上一步（Ctrl+Z）"));
    redo_ = AddButton(&DeskButtons::RedoAsked, "CmdRedo", QStringLiteral("重做"), "desk_redo",
                      QStringLiteral("重做撤销的一步（Ctrl+Y）"));
    // Wherever on the desk the focus is.
    for (const auto& [keys, button] :
         {std::pair("Ctrl+Z", undo_), {"Ctrl+Y", redo_}, {"Ctrl+Shift+Z", redo_}}) {
        PressOnKeys(parentWidget(), QKeySequence(QLatin1String(keys)), button,
                    Qt::WidgetWithChildrenShortcut);
    }
    AddCommand(DeskCommand::New, "CmdRefresh", QStringLiteral("刷新(命令C)"), "desk_new",
               QStringLiteral("清空，开始新图（C）"));
    AddCommand(DeskCommand::Redraw, "CmdRdraw", QStringLiteral("重生成(命令Redraw)"), "desk_redraw",
               QStringLiteral("重画全图（Redraw）"));
}

void DeskButtons::AddFiles() {
    AddCommand(DeskCommand::OpenFromLibrary, "CmdOpenEx", QStringLiteral("打开图库(命令Open)"), "desk_open",
               QStringLiteral("把图库中的图加到当前图上（Open）"));
    AddCommand(DeskCommand::SaveToLibrary, "CmdSaveEx", QStringLiteral("保存图库(命令Save)"), "desk_save",
               QStringLiteral("保存到图库（Save）"));
    AddButton(&DeskButtons::OpenAsked, "CmdOpen", QStringLiteral("打开文件"), "file_open",
              QStringLiteral("打开图形文件 (*.MC)"));
    AddButton(&DeskButtons::SaveAsked, "CmdSave", QStringLiteral("保存文件"), "file_save",
              QStringLiteral("保存为图形文件 (*.MC)，不含弧"));
    AddButton(&DeskButtons::DxfAsked, "CmdImportDxf", QStringLiteral("导入DXF"), "desk_import",
              QStringLiteral("用 DXF 文件的内容代替当前图"));
    AddCommand(DeskCommand::Print, "CmdPrint", QStringLiteral("打印(命令Print)"), "desk_print",
               QStringLiteral("预览、打印或存为 PDF（Print）"));
}

QPushButton* DeskButtons::Add(const char* name, const QString& caption, const char* icon,
                              const QString& toolTip) {
    QPushButton* button = MakeButton(name, caption, this, toolTip);
    button->setIcon(QIcon(QStringLiteral(":/ui/%1.svg").arg(QLatin1String(icon))));
    button->setIconSize({kIcon, kIcon});
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoDefault(false);
    column_->addWidget(button);
    return button;
}

QPushButton* DeskButtons::AddButton(Signal signal, const char* name, const QString& caption, const char* icon,
                                    const QString& toolTip) {
    QPushButton* button = Add(name, caption, icon, toolTip);
    connect(button, &QPushButton::clicked, this, signal);
    return button;
}

void DeskButtons::AddCommand(DeskCommand command, const char* name, const QString& caption, const char* icon,
                             const QString& toolTip) {
    QPushButton* button = Add(name, caption, icon, toolTip);
    connect(button, &QPushButton::clicked, this, [this, command] { Q_EMIT Chosen(command); });
    if (const std::string_view tool = ToolOfCommand(command); !tool.empty()) {
        button->setCheckable(true);
        tools_.emplace_back(tool, button);
    }
}

void DeskButtons::ShowArmed(std::string_view tool) {
    for (const auto& [name, button] : tools_) button->setChecked(name == tool);
}

void DeskButtons::ShowHistory(bool canUndo, bool canRedo) {
    undo_->setEnabled(canUndo);
    redo_->setEnabled(canRedo);
}

}  // namespace kalvane
