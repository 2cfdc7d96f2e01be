#include "plotstyles.h"

#include "colorindex.h"
#include "file/groupcode.h"
#include "file/symbolname.h"

#include <algorithm>

namespace drawing {

quint64 PlotStyles::dictionary() const
{
    const ObjectPlace* root = m_file.objects().root();
    return root ? m_file.objects().entry(root->handle, "ACAD_PLOTSTYLENAME") : 0;
}

void PlotStyles::load()
{
    m_areByColor = m_file.variable(HeaderVariable::PlotStyleMode).printed() != "0";
    if (m_areByColor)
        return;
    for (const Dictionary::Entry& entry : m_file.objects().dictionary(dictionary()).entries())
        m_names.insert(entry.object, m_file.decoded(viewOf(entry.key)));
}

QString PlotStyles::name(int colorIndex, quint64 handle) const
{
    if (!m_areByColor)
        return m_names.value(handle);
    // All layers of a colour share the same text.
    static const std::vector<QString> names = [] {
        std::vector<QString> made;
        made.reserve(kColorByLayer);
        for (int color = 0; color < kColorByLayer; ++color)
            made.push_back(QStringLiteral("Color_%1").arg(color));
        return made;
    }();
    return names.at(static_cast<size_t>(colorIndex));
}

quint64 PlotStyles::handle(const QString& name, quint64 otherwise) const
{
    if (m_areByColor)
        return otherwise;
    const auto found = std::find_if(m_names.begin(), m_names.end(),
        [&name](const QString& known) { return isSameName(known, name); });
    const bool isKept = found == m_names.end() || *found == m_names.value(otherwise);
    return isKept ? otherwise : found.key();
}

void PlotStyles::make(const QStringList& names)
{
    const quint64 handle = this->dictionary();
    if (m_file.variable(HeaderVariable::PlotStyleMode).isNull() || handle == 0)
        return;
    m_file.writeVariable(HeaderVariable::PlotStyleMode, qint64(0));
    m_areByColor = false;
    Objects& objects = m_file.objects();
    const TagStyle style = objects.style();
    Dictionary dictionary = objects.dictionary(handle);
    for (const Dictionary::Entry& entry : dictionary.entries())
        m_names.insert(entry.object, m_file.decoded(viewOf(entry.key)));
    for (const QString& name : names) {
        if (this->handle(name, 0) != 0)
            continue;
        const quint64 made = m_file.takeHandle();
        dictionary.add(m_file.encoded(name), made);
        objects.store(made, style.tag(group::kType, "ACDBPLACEHOLDER") +
                                style.handle(group::kHandle, made) +
                                style.handle(group::kSoftPointer, handle));
        m_names.insert(made, name);
    }
    objects.store(handle, dictionary.tags());
}

} // namespace drawing
