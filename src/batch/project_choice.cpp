#include "batch/project_choice.h"

#include <cmath>

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

std::vector<WindowEntry> ChosenWindows(Connection& connection, const std::string& project,
                                       std::string_view places) {
    const std::vector<WindowEntry> all = ListWindows(connection, ProjectNumber(connection, project));
    if (places.empty()) return all;
    std::vector<WindowEntry> chosen;
    while (!places.empty()) {
        const std::string_view place = TakeUpTo(places, ",");
        const double number = IsNumeric(place) ? ParseNumber(place) : 0;
        if (number < 1 || number > static_cast<double>(all.size()) || number != std::floor(number)) {
            throw Error("工程“" + project + "”有 " + std::to_string(all.size()) + " 樘门窗，没有第“" +
                        std::string(place) + "”樘。");
        }
        chosen.push_back(all[static_cast<std::size_t>(number) - 1]);
    }
    return chosen;
}

}  // namespace kalvane
