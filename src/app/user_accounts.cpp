#include "app/user_accounts.h"

#include "app/enc_decrypt.h"

namespace kalvane {
namespace {

std::string Scrambled(std::string_view password) {
    return clsEncDecrypt().KeyEncBuf(password, kPasswordKey);
}

}  // namespace

std::vector<UserAccount> LoadUserAccounts(Connection& users) {
    std::vector<UserAccount> accounts;
    for (Cursor rows = users.OpenCursor("Select * from User"); !rows.Eof(); rows.MoveNext()) {
        accounts.push_back({rows.Field("userNm").TextOrEmpty(), rows.Field("userPwd").TextOrEmpty(),
                            rows.Field("userAuth").TextOrEmpty()});
    }
    return accounts;
}

std::optional<UserAccount> AddUserAccount(Connection& users, const std::string& name,
                                          std::string_view password, const std::string& rights) {
    if (!users.OpenCursor("Select * from user where usernm='" + name + "'").Eof()) return std::nullopt;
    UserAccount account{name, Scrambled(password), rights};
    users.Execute("Insert into User values('" + name + "','" + account.password + "','" + rights + "')");
    return account;
}

void ChangeUserRights(Connection& users, const std::string& name, const std::string& rights) {
    users.Execute("Update User Set userAuth='" + rights + "' where UserNm='" + name + "'");
}

void DeleteUserAccount(Connection& users, const std::string& name) {
    users.Execute("delete from user where userNm='" + name + "'");
}

void ChangeUserPassword(Connection& users, const std::string& name, std::string_view password) {
    users.Execute("Update User Set userPwd='" + Scrambled(password) + "' where userNm='" + name + "'");
}

}  // namespace kalvane
