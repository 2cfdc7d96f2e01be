#pragma once

#include "drawing.h"

#include <QFile>
#include <QTemporaryDir>

#include <initializer_list>

/// Puts small drawings into files of a folder that goes with it. Entities are written as the tags
/// of the format, one "code value" pair a line.
class Sketch
{
public:
    /// Layers besides "0": each "name code value code value ...".
    QByteArray layers = "A 62 1;B 62 5";
    QByteArray blocks;
    QByteArray header; ///< Variables: "9 $LTSCALE 40 2".
    /// "DASHED" draws 6 units and leaves out 4; what is added stands behind it.
    QByteArray linetypes = kDashed;
    QByteArray objects;

    static constexpr char kDashed[] = "0 LTYPE 2 DASHED 70 0 3 x 72 65 73 2 40 10 49 6 49 -4 ";

    QString write(const QByteArray& entities, const QString& name = QStringLiteral("sketch.dxf"))
    {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            return {};
        file.write("0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1021\n");
        writeTags(file, header);
        file.write("0\nENDSEC\n0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLTYPE\n70\n9\n");
        writeTags(file, linetypes);
        file.write("0\nENDTAB\n0\nTABLE\n2\nLAYER\n70\n9\n");
        for (const QByteArray& layer : ("0 62 7;" + layers).split(';'))
            writeLayer(file, layer.split(' '));
        file.write("0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\nBLOCKS\n");
        writeTags(file, blocks);
        file.write("0\nENDSEC\n0\nSECTION\n2\nENTITIES\n");
        writeTags(file, entities);
        file.write("0\nENDSEC\n0\nSECTION\n2\nOBJECTS\n");
        writeTags(file, objects);
        file.write("0\nENDSEC\n0\nEOF\n");
        return path;
    }

    std::unique_ptr<drawing::Drawing> open(const QByteArray& entities)
    {
        auto opened = drawing::Drawing::open(write(entities));
        return opened ? std::move(*opened) : nullptr;
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }

private:
    static void writeLayer(QFile& file, const QList<QByteArray>& words)
    {
        file.write("0\nLAYER\n2\n" + words[0] + "\n70\n0\n");
        if (!words.contains("6"))
            file.write("6\nContinuous\n");
        for (int i = 1; i + 1 < words.size(); i += 2)
            file.write(words[i] + "\n" + words[i + 1] + "\n");
    }

    /// "0 LINE 8 A 10 1.5": pairs divided by blanks; "~" stands for a blank within a value.
    static void writeTags(QFile& file, const QByteArray& tags)
    {
        const QList<QByteArray> words = tags.simplified().split(' ');
        for (int i = 0; i + 1 < words.size(); i += 2) {
            QByteArray value = words[i + 1];
            file.write(words[i] + "\n" + value.replace('~', ' ') + "\n");
        }
    }

    QTemporaryDir m_folder;
};
