#include "store/engine_error.h"

#include <sqlite3.h>

#include <string_view>

#include "numeric/error.h"

namespace kalvane {
namespace {

std::string StatementErrorText(std::string_view message) {
    constexpr std::string_view kUnknownColumn = "no such column: ";
    if (message.starts_with(kUnknownColumn)) {
        return "“" + std::string(message.substr(kUnknownColumn.size())) +
               "”不是列名也不是数字，数字栏里只能填数字。";
    }
    constexpr std::string_view kUnknownTable = "no such table: ";
    if (message.starts_with(kUnknownTable)) {
        return "数据库里没有表“" + std::string(message.substr(kUnknownTable.size())) + "”。";
    }
    // The engine quotes the place: near "x": syntax error; unrecognized token: "'x".
    const std::size_t first = message.find('"');
    const std::size_t last = message.rfind('"');
    if (first == last) return "数据库拒绝执行语句：语句不完整或有错误。";
    return "数据库拒绝执行语句：“" + std::string(message.substr(first + 1, last - first - 1)) +
           "”附近有错误。";
}

}  // namespace

std::string EngineErrorText(sqlite3* database) {
    if (sqlite3_extended_errcode(database) == SQLITE_READONLY_DBMOVED) {
        return "数据库文件在程序运行时被移走或改名了，数据没有写入。请把它放回原处，重新启动程序。";
    }
    switch (sqlite3_errcode(database)) {
        case SQLITE_FULL:
            return "磁盘已满，数据没有写入。请清理磁盘后再试。";
        case SQLITE_READONLY:
            return "数据库文件是只读的，数据没有写入。请检查文件和文件夹的权限。";
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return "数据库正被另一个程序使用，请稍后再试。";
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
            return "数据库文件已损坏。";
        case SQLITE_IOERR:
            return "磁盘读写失败，数据没有写入。";
        case SQLITE_CANTOPEN:
            return "数据库文件不能打开。请检查文件和文件夹的权限。";
        default:
            return StatementErrorText(sqlite3_errmsg(database));
    }
}

void ThrowEngineError(sqlite3* database, const std::string& before) {
    const int code = sqlite3_errcode(database);
    const std::string text = before + EngineErrorText(database);
    if (code == SQLITE_CORRUPT || code == SQLITE_NOTADB) throw StoreDamage(text);
    throw StoreError(text);
}

}  // namespace kalvane
