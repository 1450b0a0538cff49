#pragma once

#include <string>

#include "session/app_state.h"

namespace kalvane {

/// What the settings screen shows and stores.
struct CompanySettings {
    std::string company;
    std::string telephone;
    std::string address;
    bool textOutput = false;      ///< outputs go to a text file, else to a spreadsheet
    bool shortWindCheck = false;  ///< the wind check uses the short model, else the standard one
    std::string mainStore;        ///< paths for the operator's information; the stores are opened from
    std::string stockStore;       ///< the start-up folder whatever is entered here
};

/// Reads the settings. The two choices are read into `state` again, and the wind check counts as standard
/// here when it was never saved, unlike at the start of the program.
CompanySettings LoadCompanySettings(AppState& state);

/// Saves the settings as they are and puts the two choices into force. Throws FileError when the settings
/// cannot be written.
void SaveCompanySettings(AppState& state, const CompanySettings& settings);

}  // namespace kalvane
