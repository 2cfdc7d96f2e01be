#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// What dialogs and commands agreed on: keys with their types, requests, and questions to the host.
namespace contract {

/// The first five in the order of the scalars that a node may hold.
enum Type {
    kBool = 1,
    kInt = 2,
    kLong = 4,
    kWide = 8,
    kNarrow = 16,
    kTree = 32,
    kEitherInteger = 64 ///< Is looked for as the other kind of integer as well.
};

/// The types of the value that a path leads to; 0 where nobody knows the key.
int typesOf(const char* path);

struct Request
{
    const char* dialog;
    int code;
    const char* parameter; ///< The number, or "tree".
    const char* arguments; ///< Keys that must be there; "|" between such as stand for one another.
    const char* answers;   ///< Keys that must be clear.
    const char* answer;    ///< What a command answers, as JSON.
    const char* inList;    ///< A path to records and the key that each must have.
};

/// The request a dialog may send; null for an unknown one.
const Request* findRequest(const QString& dialog, int code);
const std::vector<Request>& requests();

struct Question
{
    const char* service;
    const char* dialog;
    const char* keys;
};

const Question* findQuestion(const QString& service, const QString& dialog);
/// The key that a dialog's request code stands under.
const char* codeKeyOf(const QString& dialog);

} // namespace contract
