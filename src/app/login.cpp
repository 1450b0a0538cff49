#include "app/login.h"

#include "app/enc_decrypt.h"
#include "numeric/text.h"

namespace kalvane {

std::vector<std::string> UserNames(Connection& users) {
    std::vector<std::string> names;
    for (Cursor rows = users.OpenCursor("Select UserNm from User"); !rows.Eof(); rows.MoveNext()) {
        names.push_back(rows.Field(0).TextOrEmpty());
    }
    return names;
}

bool LogIn(AppState& state, Connection& users, std::string_view name, std::string_view password) {
    const std::string scrambled = clsEncDecrypt().KeyEncBuf(password, kPasswordKey);
    const Cursor rows = users.OpenCursor("Select * from user where userNm='" + std::string(name) + "'" +
                                         " and userPwd='" + scrambled + "'");
    if (rows.Eof()) return false;
    state.loginOK = true;
    state.userPwd = scrambled;
    state.userName = name;
    state.userAuth = Trim(rows.Field("userAuth").TextOrEmpty());
    return true;
}

}  // namespace kalvane
