#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "session/optimise_settings.h"
#include "session/tally_state.h"
#include "store/connection.h"
#include "store/field_slots.h"

namespace kalvane {

class SettingsStore;

/// The one process-wide record: the login, the open stores, the current project and the settings in force.
struct AppState {
    bool loginOK = false;
    std::string userName;
    std::string userPwd;   ///< scrambled, as it was compared
    std::string userAuth;  ///< twelve rights, trimmed

    std::filesystem::path folder;    ///< start-up folder, where the stores lie
    bool checkStores = false;        ///< the program did not end cleanly the last time
    bool storesAreDoubtful = false;  ///< damage was seen: the next start checks them
    std::unique_ptr<Connection> mainConnection;
    std::string mainConnectionText;
    std::unique_ptr<Connection> stockConnection;
    std::string stockConnectionText;
    std::unique_ptr<Connection> ownConnection;

    std::int16_t outputFileType = 0;   ///< 0 spreadsheet, else text file
    std::int16_t windCheckOption = 1;  ///< 0 standard check, else the short one
    std::string currentProjectId;
    std::string currentProjectName;
    std::string enterNoteNumber;
    std::string postNoteNumber;

    OptimiseSettings optimise;
    std::int16_t YHScheme = 0;        ///< 0 practical optimiser, else the linear one
    std::string optimiseProjectName;  ///< heading of the plan's output
    TallyState tally;
    SettingsStore* settings = nullptr;  ///< owned by main

    /// The open main store; throws StoreError when it could not be opened at the start.
    Connection& Main();
    Connection& Stock();
    Connection& Own();
};

/// The record all screens share.
AppState& App();

/// The slots all screens share.
FieldSlots& SharedFieldSlots();

}  // namespace kalvane
