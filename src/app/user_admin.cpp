#include "app/user_admin.h"

#include "app/enc_decrypt.h"

namespace kalvane {
namespace {

std::string Quoted(std::string_view text) {
    return "'" + std::string(text) + "'";
}

std::string Scrambled(std::string_view password) {
    return clsEncDecrypt().KeyEncBuf(password, kPasswordKey);
}

}  // namespace

std::vector<User> ListUsers(Connection& users) {
    std::vector<User> list;
    for (Cursor row = users.OpenCursor("Select * from user"); !row.Eof(); row.MoveNext()) {
        list.push_back({row.Field("userNm").TextOrEmpty(), row.Field("userPwd").TextOrEmpty(),
                        row.Field("userAuth").TextOrEmpty()});
    }
    return list;
}

bool UserExists(Connection& users, std::string_view name) {
    return users.OpenCursor("Select * from user where usernm=" + Quoted(name)).RecordCount() > 0;
}

User AddUser(Connection& users, std::string_view name, std::string_view password, std::string_view rights) {
    User user = {std::string(name), Scrambled(password), std::string(rights)};
    users.Execute("Insert into User values(" + Quoted(user.name) + "," + Quoted(user.scrambledPassword) +
                  "," + Quoted(user.rights) + ")");
    return user;
}

void UpdateRights(Connection& users, std::string_view name, std::string_view rights) {
    users.Execute("Update User Set userAuth=" + Quoted(rights) + " where UserNm=" + Quoted(name));
}

void DeleteUser(Connection& users, std::string_view name) {
    users.Execute("delete from user where userNm=" + Quoted(name));
}

bool IsAdministrator(std::string_view name) {
    return name == "Admin";
}

bool IsLoginPassword(const AppState& state, std::string_view password) {
    return Scrambled(password) == state.userPwd;
}

void ChangePassword(const AppState& state, Connection& users, std::string_view password) {
    users.Execute("Update User Set userPwd=" + Quoted(Scrambled(password)) +
                  " where userNm=" + Quoted(state.userName));
}

}  // namespace kalvane
