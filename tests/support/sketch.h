#pragma once

#include "drawing.h"
#include "files.h"
#include "plan.h"

#include <QTemporaryDir>

/// A block with these entities; `base` is the x and y of its base point.
inline QByteArray block(
    const QByteArray& name, const QByteArray& entities, const QByteArray& base = "0 0")
{
    return "0 BLOCK 8 0 2 " + name + " 70 0 10 " + QByteArray(base).replace(" ", " 20 ") + ' ' +
           entities + " 0 ENDBLK 8 0 ";
}

/// Writes small drawings to files in a temporary folder, which is removed with this object.
/// Entities are written as tags, each a code, a blank and a value; "~" stands for a blank within a
/// value.
class Sketch
{
public:
    /// Layers besides "0", each in the form "name code value code value ...".
    QByteArray layers = "A 62 1;B 62 5";
    QByteArray blocks;
    QByteArray header; ///< Header variables such as "9 $LTSCALE 40 2".
    /// "DASHED" draws 6 units and leaves 4 out; further linetypes are added after it.
    QByteArray linetypes = kDashed;
    QByteArray objects;

    static constexpr char kDashed[] = "0 LTYPE 2 DASHED 70 0 3 x 72 65 73 2 40 10 49 6 49 -4 ";

    QString write(const QByteArray& entities, const QString& name = "sketch.dxf") const
    {
        Plan plan;
        plan.version = "AC1021";
        for (const QByteArray& layer : ("0 62 7;" + layers).split(';'))
            plan.layers += "0 LAYER\n70 0\n" + lines("2 " + layer);
        plan.variables = lines(header);
        plan.linetypes = lines(linetypes);
        plan.objects = lines(objects);
        plan.blocks = lines(blocks);
        plan.entities = lines(entities);
        return writtenFile(path(name), plan.bytes());
    }

    std::unique_ptr<drawing::Drawing> open(const QByteArray& entities) const
    {
        auto opened = drawing::Drawing::open(write(entities));
        return opened ? std::move(*opened) : nullptr;
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }

private:
    static QByteArray lines(const QByteArray& tags)
    {
        QByteArray text;
        const QList<QByteArray> words = tags.simplified().split(' ');
        for (int i = 0; i + 1 < words.size(); i += 2)
            text += words[i] + ' ' + QByteArray(words[i + 1]).replace('~', ' ') + '\n';
        return text;
    }

    QTemporaryDir m_folder;
};
