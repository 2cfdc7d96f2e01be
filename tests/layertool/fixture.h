#pragma once

#include "../drawing/readback.h"
#include "files.h"
#include "rows.h"

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>

/// The value at a path of keys and indices.
inline QJsonValue at(QJsonValue json, const QString& path)
{
    for (const QString& part : path.split('/'))
        json = json.isArray() ? json.toArray().at(part.toInt()) : json.toObject().value(part);
    return json;
}

/// The outcome of a run of the program.
struct Run
{
    int code = -1;
    QByteArray output;
    QString error;

    /// What the format "json" says about a drawing; null when it says nothing.
    QJsonObject drawing(const QString& name) const { return found(drawings(), "name", name); }
    QJsonArray rows(const QString& name) const { return drawing(name).value("data").toArray(); }
    /// The only row whose `key` has this value; null when there is none.
    QJsonObject row(const QString& name, const char* key, const QString& value) const
    {
        return found(rows(name), key, value);
    }
    /// The values of a key in all drawings.
    QStringList values(const char* key) const
    {
        QStringList values;
        for (const QJsonValue drawing : drawings())
            values += drawing.toObject().value(QLatin1String(key)).toString();
        return values;
    }
    QMap<QString, int> counted(const char* key) const
    {
        QMap<QString, int> counts;
        for (const QString& value : values(key))
            ++counts[value];
        return counts;
    }
    QByteArray told() const { return output + error.toUtf8(); }

private:
    QJsonArray drawings() const
    {
        return QJsonDocument::fromJson(output).object().value("drawings").toArray();
    }
    static QJsonObject found(const QJsonArray& rows, const char* key, const QString& value)
    {
        for (const QJsonValue row : rows) {
            if (row.toObject().value(QLatin1String(key)).toString() == value)
                return row.toObject();
        }
        return {};
    }
};

/// A temporary folder in which the program runs.
class ToolFolder
{
public:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString write(const QString& name, const QByteArray& bytes) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        return writtenFile(path(name), bytes);
    }
    QByteArray read(const QString& name) const { return contentOf(path(name)); }
    void copy(const char* sample, const QString& name) const
    {
        write(name, contentOf(QStringLiteral(SAMPLES_DIR "/") + sample));
    }
    void copies(const char* sample, int count) const
    {
        for (int i = 0; i < count; ++i)
            copy(sample, QStringLiteral("in/%1.dxf").arg(i));
    }
    /// The contents of all files below a folder, by name, except the program's own records.
    QMap<QString, QByteArray> tree(const QString& folder) const
    {
        QMap<QString, QByteArray> files;
        QDirIterator walk(path(folder), QDir::Files, QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            const QString name = QDir(path(folder)).relativeFilePath(walk.next());
            files.insert(name, read(folder + '/' + name));
        }
        return files;
    }
    void prepare(QProcess& process, const QStringList& words, const char* program = LAYERTOOL) const
    {
        process.setWorkingDirectory(m_folder.path());
        process.setProgram(QLatin1String(program));
        process.setArguments(words);
    }
    static Run finished(QProcess& process)
    {
        process.waitForFinished(120000);
        const QByteArray output = process.readAllStandardOutput();
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, output,
            QString::fromUtf8(process.readAllStandardError())};
    }
    Run run(const QStringList& words) const
    {
        QProcess process;
        prepare(process, words);
        process.start();
        return finished(process);
    }
    /// Splits a command line at blanks. Quotes within quoted words are not supported.
    Run run(const QByteArray& line) const { return run(words(line)); }
    static QStringList words(const QByteArray& line)
    {
        return QString::fromUtf8(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    }

private:
    QTemporaryDir m_folder;
};
