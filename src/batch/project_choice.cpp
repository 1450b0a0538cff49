#include "batch/project_choice.h"

#include <cmath>
#include <numeric>

#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"
#include "project/project_list.h"

namespace kalvane {

std::string ProjectNumber(Connection& connection, const std::string& name) {
    for (const Project& project : ListProjects(connection)) {
        if (project.name == name) return project.number;
    }
    throw StoreError("没有名为“" + name + "”的工程。");
}

std::vector<int> ChosenPlaces(const std::string& project, std::size_t count, std::string_view places) {
    std::vector<int> chosen;
    if (places.empty()) {
        chosen.resize(count);
        std::iota(chosen.begin(), chosen.end(), 1);
    }
    while (!places.empty()) {
        const std::string_view place = TakeUpTo(places, ",");
        const double number = IsNumeric(place) ? ParseNumber(place) : 0;
        if (number < 1 || number > static_cast<double>(count) || number != std::floor(number)) {
            throw Error("工程“" + project + "”有 " + std::to_string(count) + " 樘门窗，没有第“" +
                        std::string(place) + "”樘。");
        }
        chosen.push_back(static_cast<int>(number));
    }
    return chosen;
}

std::vector<WindowEntry> ChosenWindows(Connection& connection, const std::string& project,
                                       std::string_view places) {
    const std::vector<WindowEntry> all = ListWindows(connection, ProjectNumber(connection, project));
    std::vector<WindowEntry> chosen;
    for (const int place : ChosenPlaces(project, all.size(), places)) {
        chosen.push_back(all[static_cast<std::size_t>(place) - 1]);
    }
    return chosen;
}

}  // namespace kalvane
