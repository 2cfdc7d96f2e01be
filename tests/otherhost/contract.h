#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// The agreement between dialogs and commands: keys with their types, requests, and questions to
/// the host.
namespace contract {

/// The types of keys. The first five are in the order of the scalars that a node may hold.
enum Type {
    kBool = 1,
    kInt = 2,
    kLong = 4,
    kWide = 8,
    kNarrow = 16,
    kTree = 32,
    kEitherInteger = 64 ///< A key that is also read as the other integer type.
};

/// The types of the value at a path; 0 for an unknown key.
int typesOf(const char* path);

struct Request
{
    const char* dialog;
    int code;
    const char* parameter; ///< A number, or "tree".
    const char* arguments; ///< Required keys; "|" separates alternatives.
    const char* answers;   ///< Keys that must have been cleared.
    const char* answer;    ///< The command's answer as JSON.
    const char* inList;    ///< A path to records and the key that each of them must have.
};

/// The request that a dialog may send; null for an unknown one.
const Request* findRequest(const QString& dialog, int code);
const std::vector<Request>& requests();

struct Question
{
    const char* service;
    const char* dialog;
    const char* keys;
};

const Question* findQuestion(const QString& service, const QString& dialog);
/// The key that holds the request code of a dialog.
const char* codeKeyOf(const QString& dialog);

} // namespace contract
