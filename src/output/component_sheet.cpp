#include "output/component_sheet.h"

#include <cmath>

#include "formula/composite.h"
#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"
#include "store/helpers.h"

namespace kalvane {
namespace {

using Cells = std::array<std::string, SheetTable::kColumns>;

const Cells& Heading(MaterialClass materialClass) {
    static const Cells kProfile = {"序号", "型材名称", "型材代号", "型材长度", "数量"};
    static const Cells kSteel = {"序号", "型钢名称", "型钢代号", "型钢长度", "数量"};
    static const Cells kFitting = {"序号", "配件名称", "配件规格", "单位", "数量"};
    static const Cells kPanel = {"序号", "板材名称", "板材长", "板材宽", "数量"};
    switch (materialClass) {
        case MaterialClass::Profile:
            return kProfile;
        case MaterialClass::Steel:
            return kSteel;
        case MaterialClass::Fitting:
            return kFitting;
        case MaterialClass::Panel:
            break;
    }
    return kPanel;
}

float Evaluate(const FieldValue& formula, const SheetLine& line) {
    if (line.labels == nullptr) throw NumericError("标注不能读出");
    return EvalWithLabels(formula.Text(), *line.labels);
}

std::string BarCount(const SheetLine& line) {
    const auto pieces = static_cast<double>(std::floor(Evaluate(line.formulas->quantity, line)));
    return ShortText(pieces * line.multiplier);
}

/// The emptiness of the quantity counts here, not that of the unit.
std::string FittingCount(const SheetLine& line) {
    const FieldValue& quantity = line.formulas->quantity;
    if (quantity.TextOrEmpty().empty()) return "0";
    std::string value = ShortText(Evaluate(quantity, line));
    try {
        return ShortText(RoundToInt16(Val(value)) * line.multiplier);
    } catch (const NumericError&) {
        return value;
    }
}

std::string PanelCount(const SheetLine& line) {
    return ShortText(line.formulas->quantity.Number() * line.multiplier);
}

/// The number of the drawing: that of the window type, or the composite's own.
std::string DrawingNumber(Connection& connection, const std::string& typeNumber) {
    if (IsComposite(typeNumber)) return ShortText(-Val(typeNumber));
    Cursor type = connection.OpenCursor("Select 图号 from 门窗 where 编号=" + typeNumber);
    if (type.Eof()) throw StoreError("窗型已不在窗型库中，没有图形");
    return type.Field(0).Text();
}

/// The head's values by the project's row and the window.
std::array<std::string, 12> Titles(const FieldSlots& slots, const WindowEntry& window, int place,
                                   const std::string& date) {
    return {slots[2],
            slots[4],
            window.name + "---" + window.position,
            slots[1],
            SheetNumber(place),
            "宽" + window.width + "高" + window.height,
            window.count,
            "",
            date,
            window.note,
            "",
            ""};
}

}  // namespace

std::array<std::string, SheetTable::kColumns> SheetCells(const SheetLine& line, const SheetFailure& failed) {
    const Cells& heading = Heading(line.materialClass);
    if (line.number == 0) return heading;
    const FormulaRow& row = *line.formulas;
    Cells cells;
    const auto fill = [&](std::size_t column, auto workOut) {
        try {
            cells[column] = workOut();
        } catch (const Error& failure) {
            failed(heading[1].substr(0, heading[1].find("名称")) + ShortText(std::int64_t{line.number}) +
                   "“" + row.name.TextOrEmpty() + "”的“" + heading[column] + "”：" + failure.what());
        }
    };
    cells[0] = ShortText(std::int64_t{line.number});
    fill(1, [&] { return row.name.Text(); });
    switch (line.materialClass) {
        case MaterialClass::Profile:
        case MaterialClass::Steel:
            fill(2, [&] { return row.code.Text(); });
            fill(3, [&] { return ShortText(Evaluate(row.length, line)); });
            fill(4, [&] { return BarCount(line); });
            break;
        case MaterialClass::Fitting:
            fill(2, [&] { return row.code.Text(); });
            cells[3] = row.unit.TextOrEmpty();
            fill(4, [&] { return FittingCount(line); });
            break;
        case MaterialClass::Panel:
            fill(2, [&] { return ShortText(Evaluate(row.length, line)); });
            fill(3, [&] { return ShortText(Evaluate(row.width, line)); });
            fill(4, [&] { return PanelCount(line); });
            break;
    }
    return cells;
}

WorkedOutSheet WorkOutSheet(Connection& connection, FieldSlots& slots, const SheetOrigin& origin,
                            const WindowEntry& window, int place) {
    WorkedOutSheet sheet;
    const SheetFailure failed = [&](const std::string& text) { sheet.failures.push_back(text); };
    const auto attempt = [&](auto work) {
        try {
            work();
            return true;
        } catch (const Error& failure) {
            failed(failure.what());
            return false;
        }
    };
    FieldSlots project;
    attempt([&] {
        LoadRowById(connection, "工程", origin.projectNumber, slots);
        project = slots;
    });
    sheet.page.titles = Titles(project, window, place, origin.date);
    sheet.page.maker = origin.maker;
    sheet.page.drawingNumber = "0";  // which no drawing has
    attempt([&] { sheet.page.drawingNumber = DrawingNumber(connection, window.typeNumber); });

    const bool hasLabels = attempt([&] { sheet.labels = LoadPlacedLabels(connection, window.number); });
    for (std::size_t i = 0; i < sheet.labels.names.size(); ++i) {
        sheet.page.labels.push_back(
            LabelOnPage(sheet.labels.px[i], sheet.labels.py[i], sheet.labels.values[i]));
    }

    FormulaRows rows(connection);
    int count = 0;
    const SheetSink add = [&](const SheetLine& line) {
        const Cells cells = SheetCells(line, failed);
        ++count;
        if (count > kMostSheetRows) return;
        for (int column = 1; column <= SheetTable::kColumns; ++column) {
            sheet.page.table.SetCell(column, count, cells[static_cast<std::size_t>(column) - 1]);
        }
    };
    WalkSheet(connection, rows, window, hasLabels ? &sheet.labels : nullptr, add, failed);
    sheet.page.rowCount = Checked16(count);
    if (count > kMostSheetRows) {
        failed("构件表最多" + std::to_string(kMostSheetRows) + "行，第" + std::to_string(kMostSheetRows + 1) +
               "至" + std::to_string(count) + "行没有列出");
    }
    return sheet;
}

ComponentSheet ForPrinting(ComponentSheet sheet) {
    constexpr int kFirstLate = 47;
    for (int row = sheet.rowCount; row >= kFirstLate; --row) {
        for (int column = 1; column <= SheetTable::kColumns; ++column) {
            sheet.table.SetCell(column, row + 1, sheet.table.Cell(column, row));
        }
    }
    for (int column = 1; column <= SheetTable::kColumns; ++column) {
        sheet.table.SetCell(column, kFirstLate, "");
    }
    return sheet;
}

std::string SheetNumber(int place) {
    const std::string number = std::to_string(place);
    constexpr std::size_t kDigits = 3;
    return number.size() < kDigits ? std::string(kDigits - number.size(), '0') + number : number;
}

std::string SheetDate(int year, int month, int day) {
    return " " + std::to_string(year) + "年 " + std::to_string(month) + "月 " + std::to_string(day) + "日";
}

}  // namespace kalvane
