#include "session/app_state.h"

#include "numeric/error.h"

namespace kalvane {

Connection& AppState::Main() {
    if (mainConnection == nullptr)
        throw StoreError("‘材料’数据库没有打开。请检查启动文件夹中的 cl.mdb 后重新启动程序。");
    return *mainConnection;
}

Connection& AppState::Stock() {
    if (stockConnection == nullptr)
        throw StoreError("仓库数据库没有打开。请检查启动文件夹中的 CangKu.mdb 后重新启动程序。");
    return *stockConnection;
}

Connection& AppState::Own() {
    if (ownConnection == nullptr)
        throw StoreError("附加数据库没有打开。请检查启动文件夹中的 kalvane.mdb 后重新启动程序。");
    return *ownConnection;
}

AppState& App() {
    static AppState state;
    return state;
}

FieldSlots& SharedFieldSlots() {
    static FieldSlots slots;
    return slots;
}

}  // namespace kalvane
