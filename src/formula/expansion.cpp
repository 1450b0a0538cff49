#include "formula/expansion.h"

#include <cmath>
#include <optional>

#include "formula/labels.h"
#include "numeric/error.h"
#include "numeric/number.h"

namespace kalvane {
namespace {

/// What the quantities of a window type are multiplied by. Each product passes through text.
struct Multiplier {
    std::string pieces;                 ///< for profiles, steels and panels
    std::string fittingPieces;          ///< for fittings, first factor
    std::optional<std::int16_t> count;  ///< for fittings of a composite, second factor
};

/// One window type with the labels of one window.
class TypeExpansion {
  public:
    TypeExpansion(Connection& connection, const std::string& typeId, const LabelSet& labels,
                  const Multiplier& multiplier, const BillSink& sink)
        : connection_(connection), typeId_(typeId), labels_(labels), multiplier_(multiplier), sink_(sink) {}

    void Run() {
        Bars("窗型材", MaterialClass::Profile);
        Bars("窗型钢", MaterialClass::Steel);
        Fittings();
        Panels();
    }

  private:
    Cursor Rows(const std::string& table) {
        return connection_.OpenCursor("Select * From " + table + " where 窗号=" + typeId_);
    }

    float Evaluate(const FieldValue& formula) const { return EvalWithLabels(formula.Text(), labels_); }

    void Bars(const std::string& table, MaterialClass materialClass) {
        for (Cursor row = Rows(table); !row.Eof(); row.MoveNext()) {
            BillRow bill;
            bill.materialClass = materialClass;
            bill.name = row.Field("名称").Text();
            bill.code = row.Field("规格").Text();
            bill.length = ShortText(Evaluate(row.Field("计算公式")));
            const double quantity = static_cast<double>(std::floor(Evaluate(row.Field("数量"))));
            bill.quantity = ShortText(quantity * Val(multiplier_.pieces));
            sink_(bill);
        }
    }

    void Fittings() {
        for (Cursor row = Rows("窗配件"); !row.Eof(); row.MoveNext()) {
            BillRow bill;
            bill.materialClass = MaterialClass::Fitting;
            bill.name = row.Field("名称").Text();
            bill.code = row.Field("规格").Text();
            bill.unit = row.Field("单位").Text();
            const std::int16_t each = RoundToInt16(Val(ShortText(Evaluate(row.Field("数量")))));
            bill.quantity = ShortText(each * Val(multiplier_.fittingPieces));
            if (multiplier_.count) bill.quantity = ShortText(Val(bill.quantity) * *multiplier_.count);
            sink_(bill);
        }
    }

    void Panels() {
        for (Cursor row = Rows("窗板材"); !row.Eof(); row.MoveNext()) {
            BillRow bill;
            bill.materialClass = MaterialClass::Panel;
            bill.name = row.Field("名称").Text();
            bill.length = ShortText(Evaluate(row.Field("长公式")));
            bill.width = ShortText(Evaluate(row.Field("宽公式")));
            bill.quantity = ShortText(row.Field("数量").Number() * Val(multiplier_.pieces));
            sink_(bill);
        }
    }

    Connection& connection_;
    const std::string& typeId_;
    const LabelSet& labels_;
    const Multiplier& multiplier_;
    const BillSink& sink_;
};

}  // namespace

bool IsComposite(const WindowToExpand& window) {
    return Val(window.typeId) < 0;
}

void ExpandPlain(Connection& connection, const WindowToExpand& window, Notice& notice, const BillSink& sink) {
    try {
        const LabelSet labels = LoadPlainLabels(connection, window.id);
        const Multiplier multiplier{window.count, window.count, std::nullopt};
        TypeExpansion(connection, window.typeId, labels, multiplier, sink).Run();
    } catch (const Error& failure) {
        notice.Show(failure.what(), "出错！", NoticeIcon::Error);
    }
}

void ExpandComposite(Connection& connection, const WindowToExpand& window, const BillSink& sink) {
    LabelSet labels;
    std::int16_t count = 0;
    Cursor member =
        connection.OpenCursor("Select CBN,CMC from 标注2 where MCBN=" + window.id + " Group by CBN,CMC");
    for (; !member.Eof(); member.MoveNext()) {
        const std::string cbn = member.Field("CBN").Text();
        LoadMemberLabels(connection, window.id, cbn, member.Field("CMC").TextOrEmpty(), labels, count);
        const double pieces = ParseNumber(window.count);
        const Multiplier multiplier{ShortText(pieces * count), ShortText(pieces), count};
        TypeExpansion(connection, cbn, labels, multiplier, sink).Run();
    }
}

}  // namespace kalvane
