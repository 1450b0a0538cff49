#include "project/screens/window_rows.h"

#include "numeric/assertion.h"
#include "ui/text.h"

namespace kalvane {

QStringList ProjectColumns() {
    return {QStringLiteral("工程名称"), QStringLiteral("工程地点"), QStringLiteral("甲方单位"),
            QStringLiteral("合同编号"), QStringLiteral("编号")};
}

QStringList ToRow(const Project& project) {
    return {ToQt(project.name), ToQt(project.place), ToQt(project.client), ToQt(project.contractNumber),
            ToQt(project.number)};
}

Project ToProject(const QStringList& row) {
    KALVANE_ASSERT(row.size() == 5);
    return {FromQt(row[4]), FromQt(row[3]), FromQt(row[0]), FromQt(row[1]), FromQt(row[2])};
}

QStringList WindowColumns() {
    return {QStringLiteral("门窗名称"),   QStringLiteral("门窗部位"), QStringLiteral("制作尺寸宽"),
            QStringLiteral("制作尺寸高"), QStringLiteral("樘数"),     QStringLiteral("说明"),
            QStringLiteral("工程编号"),   QStringLiteral("门窗编号"), QStringLiteral("编号")};
}

QStringList ToRow(const WindowEntry& window) {
    QStringList row;
    for (const std::string* text :
         {&window.name, &window.position, &window.width, &window.height, &window.count, &window.note,
          &window.projectNumber, &window.typeNumber, &window.number}) {
        row << ToQt(*text);
    }
    return row;
}

WindowEntry ToWindow(const QStringList& row) {
    KALVANE_ASSERT(row.size() == 9);
    return {FromQt(row[0]), FromQt(row[1]), FromQt(row[2]), FromQt(row[3]), FromQt(row[4]),
            FromQt(row[5]), FromQt(row[6]), FromQt(row[7]), FromQt(row[8])};
}

}  // namespace kalvane
