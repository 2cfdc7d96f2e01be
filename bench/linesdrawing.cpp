#include "linesdrawing.h"

#include <QFile>

namespace bench {

bool writeLines(const QString& path, int lines, int layers)
{
    QByteArray text = "0\nSECTION\n2\nENTITIES\n";
    for (int i = 0; i < lines; ++i) {
        const qint64 x = qint64(i) * 7919 % 10007;
        const qint64 y = qint64(i) * 104729 % 10009;
        text += "0\nLINE\n8\nL" + QByteArray::number(i % layers) + "\n10\n" +
                QByteArray::number(x) + "\n20\n" + QByteArray::number(y) + "\n11\n" +
                QByteArray::number(x + 60) + "\n21\n" + QByteArray::number(y + i % 90) + "\n";
    }
    text += "0\nENDSEC\n0\nEOF\n";
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

} // namespace bench
