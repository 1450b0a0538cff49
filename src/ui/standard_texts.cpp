#include "ui/standard_texts.h"

#include <QHash>

namespace kalvane {
namespace {

// Sources without the mark of their access key: what the toolkit asks for differs in it between classes.
const QHash<QByteArray, QString>& Texts() {
    static const QHash<QByteArray, QString> texts = {
        // Buttons
        {"OK", QStringLiteral("确定")},
        {"Cancel", QStringLiteral("取消")},
        {"Yes", QStringLiteral("是")},
        {"No", QStringLiteral("否")},
        {"Yes to All", QStringLiteral("全部是")},
        {"No to All", QStringLiteral("全部否")},
        {"Open", QStringLiteral("打开")},
        {"Save", QStringLiteral("保存")},
        {"Close", QStringLiteral("关闭")},
        {"Apply", QStringLiteral("应用")},
        {"Reset", QStringLiteral("重置")},
        {"Help", QStringLiteral("帮助")},
        {"Discard", QStringLiteral("不保存")},
        {"Abort", QStringLiteral("中止")},
        {"Retry", QStringLiteral("重试")},
        {"Ignore", QStringLiteral("忽略")},
        {"Show Details...", QStringLiteral("显示详情…")},
        {"Hide Details...", QStringLiteral("隐藏详情…")},
        // Edit menus
        {"Undo", QStringLiteral("撤消")},
        {"Redo", QStringLiteral("重做")},
        {"Cut", QStringLiteral("剪切")},
        {"Copy", QStringLiteral("复制")},
        {"Paste", QStringLiteral("粘贴")},
        {"Delete", QStringLiteral("删除")},
        {"Clear", QStringLiteral("清除")},
        {"Select All", QStringLiteral("全选")},
        {"Step up", QStringLiteral("增加")},
        {"Step down", QStringLiteral("减少")},
        // Child windows
        {"Restore", QStringLiteral("还原")},
        {"Restore Down", QStringLiteral("还原")},
        {"Move", QStringLiteral("移动")},
        {"Size", QStringLiteral("大小")},
        {"Minimize", QStringLiteral("最小化")},
        {"Maximize", QStringLiteral("最大化")},
        {"Stay on Top", QStringLiteral("总在最前")},
        {"Menu", QStringLiteral("菜单")},
        // File dialogs
        {"Name", QStringLiteral("名称")},
        {"Type", QStringLiteral("类型")},
        {"Kind", QStringLiteral("类型")},
        {"Date Modified", QStringLiteral("修改日期")},
        {"Look in:", QStringLiteral("查找范围：")},
        {"File name:", QStringLiteral("文件名：")},
        {"Files of type:", QStringLiteral("文件类型：")},
        {"Directory:", QStringLiteral("文件夹：")},
        {"Back", QStringLiteral("后退")},
        {"Forward", QStringLiteral("前进")},
        {"Go back", QStringLiteral("后退")},
        {"Go forward", QStringLiteral("前进")},
        {"Parent Directory", QStringLiteral("上级文件夹")},
        {"Go to the parent directory", QStringLiteral("上级文件夹")},
        {"Create New Folder", QStringLiteral("新建文件夹")},
        {"Create a New Folder", QStringLiteral("新建文件夹")},
        {"New Folder", QStringLiteral("新建文件夹")},
        {"List View", QStringLiteral("列表")},
        {"Change to list view mode", QStringLiteral("列表")},
        {"Detail View", QStringLiteral("详细信息")},
        {"Change to detail view mode", QStringLiteral("详细信息")},
        {"Rename", QStringLiteral("重命名")},
        {"Show hidden files", QStringLiteral("显示隐藏文件")},
        {"Computer", QStringLiteral("计算机")},
        {"My Computer", QStringLiteral("计算机")},
        {"File", QStringLiteral("文件")},
        {"Folder", QStringLiteral("文件夹")},
        {"Drive", QStringLiteral("驱动器")},
        {"%1 File", QStringLiteral("%1 文件")},
        {"%1\nFile not found.\nPlease verify the correct file name was given.",
         QStringLiteral("%1\n找不到文件。请检查文件名。")},
        {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
         QStringLiteral("%1\n找不到文件夹。请检查名称。")},
        // Printing
        {"Print", QStringLiteral("打印")},
        {"Print Preview", QStringLiteral("打印预览")},
        {"Page Setup", QStringLiteral("页面设置")},
        {"Page setup", QStringLiteral("页面设置")},
        {"Next page", QStringLiteral("下一页")},
        {"Previous page", QStringLiteral("上一页")},
        {"First page", QStringLiteral("第一页")},
        {"Last page", QStringLiteral("最后一页")},
        {"Fit width", QStringLiteral("适合宽度")},
        {"Fit page", QStringLiteral("适合整页")},
        {"Zoom in", QStringLiteral("放大")},
        {"Zoom out", QStringLiteral("缩小")},
        {"Portrait", QStringLiteral("纵向")},
        {"Landscape", QStringLiteral("横向")},
        {"Show single page", QStringLiteral("单页")},
        {"Show facing pages", QStringLiteral("双页")},
        {"Show overview of all pages", QStringLiteral("所有页")},
        {"Export to PDF", QStringLiteral("导出 PDF")},
        {"Printer", QStringLiteral("打印机")},
        {"Location:", QStringLiteral("位置：")},
        {"Properties", QStringLiteral("属性")},
        {"Output file:", QStringLiteral("输出文件：")},
        {"Print to File (PDF)", QStringLiteral("打印到文件 (PDF)")},
        {"Print range", QStringLiteral("打印范围")},
        {"Print all", QStringLiteral("全部")},
        {"Copies", QStringLiteral("份数")},
        {"Copies:", QStringLiteral("份数：")},
        {"Options", QStringLiteral("选项")},
    };
    return texts;
}

}  // namespace

QString StandardTexts::translate(const char*, const char* source, const char*, int) const {
    QByteArray plain(source);
    plain.replace('&', "");
    return Texts().value(plain);
}

}  // namespace kalvane
