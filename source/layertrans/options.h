#pragma once

#include "layertranslation.h"

#include <QStringList>

#include <tl/expected.hpp>

/// What the program was asked to do.
struct Options
{
    QString standard;
    bool mapSame = false;
    drawing::TranslationOptions translation;
    QStringList translationNames; ///< Of the options in `translation`, for worker processes.
    QString out;
    QStringList drawings; ///< In their order, those of the list behind those named.
    int shard = 1;        ///< Of `shardCount` parts this one, from 1.
    int shardCount = 1;
    int jobs = 1;
    bool force = false;
    QString report;        ///< Empty: none.
    bool isWorker = false; ///< Takes its jobs from standard input.
    QString mergedReport;  ///< Not empty: merges `reports` into it and does nothing else.
    QStringList reports;
};

enum ExitCode { Fine = 0, SomeFailed = 1, BadUsage = 2 };

/// Ends the program before it began: with its help or version, or with a refusal.
struct EarlyExit
{
    int code = Fine;
    QString text;
};

/// Reads the command line and the list of drawings it names.
tl::expected<Options, EarlyExit> parseOptions(const QStringList& arguments);
