#include "project/contract.h"

#include "project/refused_save.h"
#include "store/command_scope.h"

namespace kalvane {
namespace {

constexpr const char* kCompanyKey = "DW";

/// Captions of the printed contract. They are not quite those of the screen.
constexpr std::array<const char*, kContractTextCount> kPrintedCaptions = {
    "供方：",
    "需方：",
    "地址：",
    "地址：",
    "电话：",
    "电话：",
    "1.塑钢品牌、产地及系列：",
    "2.五金件品牌及产地：",
    "3.纱窗玻璃颜色：",
    "4.质量要求及技术标准，供方对质量负现的条件：",
    "5.数量及单价：",
    "6.结算方式及期限：",
    "7.其它事项："};

Cursor OpenContract(Connection& connection, std::string_view projectNumber) {
    return connection.OpenCursor("Select * from 工程合同 where HTBN=" + std::string(projectNumber));
}

}  // namespace

std::string ContractHeading(const SettingsStore& settings) {
    return settings.Read(kSettingsApplication, kSectionMain, kCompanyKey, "塑钢公司") + "订货单";
}

void FillSupplier(const SettingsStore& settings, ContractTexts& texts) {
    const auto setting = [&settings](const char* key) {
        return settings.Read(kSettingsApplication, kSectionMain, key, "");
    };
    texts[0] = setting(kCompanyKey);
    texts[2] = setting("ADDRESS");
    texts[4] = setting("TEL");
}

std::optional<ContractTexts> LoadContract(Connection& connection, std::string_view projectNumber) {
    const Cursor row = OpenContract(connection, projectNumber);
    if (row.Eof()) return std::nullopt;
    ContractTexts texts;
    for (std::size_t i = 0; i < texts.size(); ++i) texts[i] = row.Field(static_cast<int>(i)).TextOrEmpty();
    return texts;
}

void SaveContract(Connection& connection, std::string_view projectNumber, const ContractTexts& texts,
                  const std::string& heading) {
    const std::string number(projectNumber);
    std::string values;
    for (const std::string& text : texts) values += "'" + text + "',";
    CommandScope scope(connection);
    try {
        connection.Execute("Delete * from 工程合同 where HTBN=" + number);
        connection.Execute(
            "Insert into 工程合同 (T1,T2,T3,T4,T5,T6,T7,T8,T9,T10,T11,T12,T13,BT,HTBN) Values(" + values +
            "'" + heading + "'," + number + ")");
        scope.Finish();
    } catch (const StoreError& refusal) {
        ThrowRefusal(refusal, scope.IsUndone() ? "存储的合同没有变动。"
                                               : "原来存储的合同已先删除，现在没有存储的合同。");
    }
}

Report ContractReport(Connection& connection, std::string_view projectNumber) {
    const Cursor row = OpenContract(connection, projectNumber);
    const auto field = [&row](int index) { return row.Eof() ? "" : row.Field(index).TextOrEmpty(); };
    Report report;
    report.title = field(static_cast<int>(kContractTextCount));  // BT
    for (std::size_t i = 0; i < kPrintedCaptions.size(); ++i) {
        report.closing.push_back({kPrintedCaptions[i] + field(static_cast<int>(i))});
    }
    report.closing.push_back({"经办签章：", "需方签章："});
    return report;
}

}  // namespace kalvane
