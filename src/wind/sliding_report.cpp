#include "wind/sliding_report.h"

#include "numeric/number.h"
#include "numeric/text.h"
#include "wind/sliding_form.h"
#include "wind/verdict.h"

namespace kalvane {
namespace {

/// Writes lines at their indents.
class ReportLines {
  public:
    explicit ReportLines(const FormTexts& texts) : texts_(texts) {}

    void Heading(std::string line) { lines_.push_back(std::move(line)); }
    void SubHeading(const std::string& line) { Heading("\t" + line); }
    void Item(const std::string& line) { Heading("\t\t" + line); }
    void Verdict(const std::string& caption, bool passes) { Item(caption + VerdictWord(passes)); }
    /// A numbered item with what stands in a box, or in two.
    void Input(int number, const std::string& caption, std::string_view box) {
        Numbered(number, caption, texts_.Text(box));
    }
    void Input(int number, const std::string& caption, std::string_view box, std::string_view second) {
        Numbered(number, caption, texts_.Text(box) + "*" + texts_.Text(second));
    }

    std::vector<std::string> Take() { return std::move(lines_); }

  private:
    void Numbered(int number, const std::string& caption, const std::string& text) {
        const std::string place = "(" + std::to_string(number) + ")";
        Item(place + (number < 10 ? "  " : " ") + caption + text);
    }

    const FormTexts& texts_;
    std::vector<std::string> lines_;
};

void WriteBasis(ReportLines& report, std::string_view basis) {
    do {
        std::string_view line = TakeUpTo(basis, "\n");
        if (line.ends_with('\r')) line.remove_suffix(1);
        report.Heading(std::string(line));
    } while (!basis.empty());
}

void WriteInputs(ReportLines& report, bool hasTopLight) {
    report.SubHeading("(一)基础数据：");
    report.Input(1, "城市：", "txtCS");
    report.Input(2, "基本风压：", "txtFYZ");
    report.Input(3, "地面粗糙度：", "cmbDMCCD");
    report.Input(4, "建筑物类型：", "cmbJZWLX");
    report.Input(5, "建筑高度：", "cmbJZGD");
    report.Input(6, "玻璃类型：", "cmbBLZL");
    report.Input(7, "玻璃厚度：", "txtBLHD");
    report.Input(8, "玻璃尺寸：", "txtBLCD", "txtBLGD");
    report.Input(9, "窗扇尺寸：", "txtSKD", "txtSGD");
    int number = 10;
    if (hasTopLight) report.Input(number++, "亮子尺寸：", "txtLZKD", "txtLZGD");
    report.Input(number++, "型钢类型：", "cmbXGLX");
    report.Input(number++, "型钢壁厚：", "cmbXGBH");
    report.Input(number, "型钢惯性矩：", "txtXGGXG");
}

void WriteLoad(ReportLines& report, const SlidingNumbers& numbers) {
    report.SubHeading("(二) 计算标准风压值：");
    report.Item(std::string("计算公式：Wk = Bgz * us * uz * Wo") + (numbers.isHigh ? " * 110%" : ""));
    report.Item("风荷载标准值：    Wk");
    report.Item("阵风系数：        Bgz = " + ShortText(numbers.bgz));
    report.Item("风荷载体型系数：  Us = " + ShortText(numbers.us));
    report.Item("风压高度变化系数：Uz = " + ShortText(numbers.uz));
    report.Item("基本风压值：      Wo = " + ShortText(numbers.wo) + "千牛/平方米");
    report.Item("计算结果：Wk = " + ShortText(numbers.wk) + "千牛/平方米");
}

void WriteGlass(ReportLines& report, const SlidingNumbers& numbers) {
    report.SubHeading("(三) 计算单片玻璃最大许用面积：");
    report.Item(numbers.isThick ? "计算公式：Amax = (a * (0.2 * t^1.6 + 0.8)) / Wk"
                                : "计算公式：Amax = (0.2 * at^1.8) / Wk");
    report.Item("Amax : 单片玻璃最大许用面积");
    report.Item("a : 抗风压调整系数，a = " + ShortText(numbers.a));
    report.Item("t : 玻璃厚度，t = " + ShortText(std::int64_t{numbers.t}) + "mm");
    report.Item("Wk : 风荷载标准值，Wk = " + ShortText(numbers.wk) + "千牛/平方米");
    report.Item("计算结果：Amax = " + ShortText(numbers.amax) + "平方米");
    report.Item("玻璃面积：" + ShortText(numbers.area) + "平方米");
    report.Verdict("校核结论：", numbers.glassPasses);
}

void WriteModel(ReportLines& report, const SlidingLayout& layout) {
    report.Item(layout.hasTopLight ? "计算公式：Fmax = (Q1 * L^3) / 64EI + (Q2 * L^3) / 60EI"
                                   : "计算公式：Fmax = (Q * L^3) / 64EI");
    report.Item("Wk : 风压设计标准值");
    report.Item("h  : 扇高度");
    report.Item("b  : 扇宽度");
    if (layout.hasTopLight) {
        report.Item("Lb : 亮子宽度");
        report.Item("Lh : 亮子高度");
        report.Item(layout.hasMullion ? "A1 : 构件受荷面积1 = (2 * b - Lh) * Lh / 2"
                                      : "A1 : 构件受荷面积1 = ((4 * b - Lh) * Lh / 2) / 2");
        report.Item("A2 : 构件受荷面积2 = b * b / 2");
        report.Item("Q1 : 构件承受总荷载1 = Wk * A1");
        report.Item("Q2 : 构件承受总荷载2 = Wk * A2");
        report.Item("L  : 受荷构件长度 = 2 * b");
    } else {
        report.Item("A  : 构件受荷面积 = ((h - b + h) * b / 2) / 2");
        report.Item("Q  : 构件承受总荷载 = Wk * A");
        report.Item("L  : 受荷构件长度 = h");
    }
}

void WriteSteel(ReportLines& report, const FormTexts& texts, const SlidingNumbers& numbers) {
    report.SubHeading("(四) 计算窗挠度：");
    WriteModel(report, LayoutOf(texts));
    report.Item("E  : 型钢弹性模量(2.1 * 10^5 牛/平方毫米)");
    report.Item("I  : 型钢惯性矩" + texts.Text("txtXGGXG") + "厘米4次方");
    report.Item("Fmax = " + ShortText(numbers.fmax) + "mm");
    report.Item("受荷构件允许挠度：(L / 180) = " + ShortText(numbers.permitted) + "mm");
    report.Verdict("校核结果：", numbers.steelPasses);
}

}  // namespace

std::vector<std::string> SlidingReport(const FormTexts& texts, const SlidingNumbers& numbers) {
    ReportLines report(texts);
    report.Heading("");
    report.Heading("\t\t\t塑钢门窗抗风压校核报告");
    report.Heading("");
    report.Heading("一、工程名称：" + texts.Text("txtGCMC"));
    report.Heading("二、选用门窗：" + texts.Text("cmbMCLX") + " " + texts.Text("txtMCBH") + " (设计尺寸：" +
                   texts.Text("txtMCCC") + ")");
    report.Heading("三、校核依据：");
    WriteBasis(report, texts.Text("rtxJHYJ"));
    report.Heading("四、抗风压校核：");
    WriteInputs(report, LayoutOf(texts).hasTopLight);
    WriteLoad(report, numbers);
    WriteGlass(report, numbers);
    WriteSteel(report, texts, numbers);
    return report.Take();
}

}  // namespace kalvane
