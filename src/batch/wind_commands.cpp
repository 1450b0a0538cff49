#include "batch/wind_commands.h"

#include <CLI/CLI.hpp>
#include <iostream>

#include "batch/setting.h"
#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"
#include "wind/full_check.h"
#include "wind/full_report.h"
#include "wind/sliding_check.h"
#include "wind/sliding_form.h"
#include "wind/verdict.h"
#include "wind/wind_pages.h"
#include "wind/window_check.h"

namespace kalvane {
namespace {

void Print(const std::string& name, const std::string& value) {
    std::cout << name << '\t' << value << '\n';
}

void Print(const WindowCheck& check) {
    for (const std::string& line : check.lines) std::cout << line << '\n';
}

void PrintVerdicts(const WindowCheck& check) {
    for (const WindowCheck::Verdict& verdict : check.verdicts) {
        Print(verdict.check + "校核", VerdictWord(verdict.passes));
    }
    for (const RecheckRow& row : check.recheck.rows) {
        const std::string name = "复核." + row.sign;
        Print(name, ShortText(row.value));
        if (row.relation.empty()) continue;
        Print(name + ".限值", row.relation + ShortText(row.limit));
        Print(name + ".结论", row.VerdictText());
    }
    for (const std::string& warning : check.recheck.warnings) Print("复核.注意", warning);
}

void PrintNumbers(const SlidingNumbers& numbers) {
    Print("Bgz", ShortText(numbers.bgz));
    Print("Us", ShortText(numbers.us));
    Print("Uz", ShortText(numbers.uz));
    Print("Wo", ShortText(numbers.wo));
    Print("Wk", ShortText(numbers.wk));
    Print("a", ShortText(numbers.a));
    Print("t", ShortText(std::int64_t{numbers.t}));
    Print("Amax", ShortText(numbers.amax));
    Print("玻璃面积", ShortText(numbers.area));
    Print("I", ShortText(numbers.i));
    Print("Fmax", ShortText(numbers.fmax));
    Print("L/180", ShortText(numbers.permitted));
}

void PrintNumbers(const FullLoad& load, const FullNumbers& numbers) {
    Print("W0", ShortText(load.w0));
    Print("Uz", ShortText(load.uz));
    Print("Bgz", ShortText(load.bgz));
    Print("Us", ShortText(load.us));
    Print("Wk", ShortText(load.wk));
    Print("Wd", ShortText(load.wd));
    Print("a", ShortText(numbers.a));
    Print("Amax", ShortText(numbers.area.limit));
    Print("玻璃面积", ShortText(numbers.area.value));
    Print("Q1", ShortText(numbers.q1));
    Print("Sw", ShortText(numbers.bending.value));
    Print("st", ShortText(numbers.temperature.value));
    Print("u", ShortText(numbers.deflection.value));
    Print("wh", ShortText(numbers.openingLoad));
    Print("N", ShortText(numbers.screws));
    Print("Nb", ShortText(numbers.widthScrews));
    Print("Nh", ShortText(numbers.heightScrews));
    Print("qb", ShortText(numbers.qb));
    Print("qh", ShortText(numbers.qh));
    Print("Mzb", ShortText(numbers.mzb));
    Print("Mzh", ShortText(numbers.mzh));
    Print("Qb", ShortText(numbers.shearB));
    Print("Qh", ShortText(numbers.shearH));
    Print("横框正应力", ShortText(numbers.transomBending.value));
    Print("立框正应力", ShortText(numbers.mullionBending.value));
    Print("横框剪应力", ShortText(numbers.transomShear.value));
    Print("立框剪应力", ShortText(numbers.mullionShear.value));
}

void Require(const std::optional<Refusal>& refusal) {
    if (refusal) throw Error(std::string(refusal->message));
}

}  // namespace

WindCommands::WindCommands(CLI::App& application) {
    CLI::App* wind = application.add_subcommand("wind", "wind-pressure checks");
    wind->require_subcommand(1);

    CLI::App* quick = wind->add_subcommand("quick", "report on a sliding window");
    AddSets(*quick);
    quick->callback([this] { Quick(); });

    CLI::App* full = wind->add_subcommand("full", "full report; names begin with base. or detail.");
    AddSets(*full);
    full->callback([this] { Full(); });

    CLI::App* pages = wind->add_subcommand("pages", "places of the full report's lines on paper, in twips");
    pages->add_option("--width", width_, "page width")->required()->check(CLI::PositiveNumber);
    pages->add_option("--height", height_, "page height")->required()->check(CLI::PositiveNumber);
    pages->add_option("--text-height", textHeight_, "height of a line")
        ->required()
        ->check(CLI::PositiveNumber);
    pages->callback([this] { Pages(); });
}

void WindCommands::AddSets(CLI::App& command) {
    command.add_option("--set", sets_, "NAME=VALUE; may be given several times, line ends written \\n")
        ->allow_extra_args(false)
        ->take_all();
    command.add_flag("--values", values_, "name and value in place of the report");
}

void WindCommands::Quick() const {
    FormTexts texts(SlidingBoxes());
    for (const std::string& word : sets_) {
        const Setting setting = ParsedSetting(word);
        texts.Set(setting.name, setting.text);
        if (setting.name == "cmbXGLX" || setting.name == "cmbXGBH") TakeSteelInertia(texts);
    }
    Require(SlidingRefusal(texts));
    const WindowCheck check = CheckSlidingWindow(texts);
    if (values_) {
        PrintNumbers(CheckSliding(texts));
        PrintVerdicts(check);
    } else {
        Print(check);
    }
}

void WindCommands::Full() const {
    FullTexts texts;
    for (const std::string& word : sets_) {
        const Setting setting = ParsedSetting(word);
        std::string_view name = setting.name;
        const std::string_view screen = TakeUpTo(name, ".");
        if (screen != "base" && screen != "detail") {
            throw Error("“" + setting.name + "”应以 base. 或 detail. 开头。");
        }
        (screen == "base" ? texts.base : texts.detail).Set(name, setting.text);
    }
    Require(FullRefusal(texts.base));
    const WindowCheck check = CheckFullWindow(texts);
    if (values_) {
        const FullLoad load = FindFullLoad(texts.base);
        PrintNumbers(load, CheckFull(load, texts.detail));
        PrintVerdicts(check);
    } else {
        Print(check);
    }
}

void WindCommands::Pages() const {
    const auto metrics = FullPageMetrics::Of(width_, height_);
    for (const PlacedLine& placed : PlaceLines(metrics, textHeight_, kFullLines)) {
        std::cout << placed.page << '\t' << placed.line << '\t' << ShortText(placed.y) << '\n';
    }
}

}  // namespace kalvane
