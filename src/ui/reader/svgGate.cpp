// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/svgGate_p.h"

#include <QFile>
#include <QHash>
#include <QVector>
#include <QXmlStreamReader>

#include <algorithm>

#include <zlib.h>

namespace Hintreels {

namespace {

constexpr int largestSvg = 8 * 1024 * 1024; // bytes
constexpr int mostSteps = 100'000; // elements, those of copies included
// Qt holds each rule of a style sheet against each element, and against those around it.
constexpr qint64 mostMatching = 200'000'000; // letters of sheets, by elements, by levels
constexpr int deepest = 250; // Qt draws by recursion, in a thread

const QString xlink = QStringLiteral("http://www.w3.org/1999/xlink");

/// Owns zlib's state while a file is unpacked.
struct Inflating
{
    Inflating() { ready = inflateInit2(&stream, 16 + MAX_WBITS) == Z_OK; } // 16: gzip only
    ~Inflating() { inflateEnd(&stream); }
    Q_DISABLE_COPY(Inflating)

    z_stream stream{};
    bool ready;
};

QByteArray unpacked(QByteArray packed)
{
    QByteArray svg(largestSvg + 1, Qt::Uninitialized);
    Inflating inflating;
    inflating.stream.next_in = reinterpret_cast<Bytef *>(packed.data());
    inflating.stream.avail_in = uInt(packed.size());
    inflating.stream.next_out = reinterpret_cast<Bytef *>(svg.data());
    inflating.stream.avail_out = uInt(svg.size());
    const bool whole = inflating.ready && inflate(&inflating.stream, Z_FINISH) == Z_STREAM_END
        && inflating.stream.avail_out > 0;
    return whole ? svg.left(int(inflating.stream.total_out)) : QByteArray();
}

/// Follows a drawing element by element, and counts what drawing it takes.
class SvgWalk
{
public:
    bool take(const QXmlStreamReader &svg);

    /// Whether the copies, too, are drawn in few enough steps.
    bool isShort() const;

    /// Whether style sheets are small enough for as many elements.
    bool isSoonStyled() const { return m_sheets * m_steps * m_levels <= mostMatching; }

private:
    struct Open
    {
        QString id;
        int steps;
        bool copies;
        bool isSheet;
    };
    struct Part
    {
        int steps;
        bool copies;
    };

    bool open(const QXmlStreamReader &svg);
    void close();

    QVector<Open> m_open;
    QHash<QString, Part> m_parts;
    QStringList m_copied;
    int m_steps = 0;
    int m_levels = 0;
    qint64 m_sheets = 0; // letters
};

bool SvgWalk::take(const QXmlStreamReader &svg)
{
    switch (svg.tokenType()) {
    case QXmlStreamReader::StartElement:
        return open(svg);
    case QXmlStreamReader::EndElement:
        close();
        return true;
    case QXmlStreamReader::Characters:
        m_sheets += !m_open.isEmpty() && m_open.last().isSheet ? svg.text().size() : 0;
        return true;
    case QXmlStreamReader::DTD:
        return svg.entityDeclarations().isEmpty();
    case QXmlStreamReader::ProcessingInstruction:
        return false;
    default:
        return true;
    }
}

bool SvgWalk::open(const QXmlStreamReader &svg)
{
    const QXmlStreamAttributes attributes = svg.attributes();
    const bool copies = svg.name() == QLatin1String("use");
    if (copies)
        m_copied.append(
            attributes.value(xlink, QStringLiteral("href")).toString().section(u'#', 1));
    const bool isSheet
        = svg.name() == QLatin1String("style") || (!m_open.isEmpty() && m_open.last().isSheet);
    m_open.append({ attributes.value(QStringLiteral("id")).toString(), 1, copies, isSheet });
    m_levels = std::max(m_levels, int(m_open.size()));
    return m_open.size() <= deepest && ++m_steps <= mostSteps
        && svg.name() != QLatin1String("image");
}

void SvgWalk::close()
{
    const Open closed = m_open.takeLast();
    if (!closed.id.isEmpty())
        m_parts.insert(closed.id, { closed.steps, closed.copies });
    if (m_open.isEmpty())
        return;
    m_open.last().steps += closed.steps;
    m_open.last().copies = m_open.last().copies || closed.copies;
}

bool SvgWalk::isShort() const
{
    qint64 steps = m_steps;
    for (const QString &id : m_copied) {
        const Part part = m_parts.value(id, { 0, false });
        steps += part.steps;
        // A copy that holds copies multiplies them, or itself.
        if (part.copies || steps > mostSteps)
            return false;
    }
    return true;
}

} // namespace

QByteArray readSvg(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestSvg)
        return {};
    const QByteArray content = file.read(largestSvg);
    return content.startsWith("\x1f\x8b") ? unpacked(content) : content;
}

bool isHarmlessSvg(const QByteArray &svg)
{
    QXmlStreamReader reader(svg);
    SvgWalk walk;
    while (!reader.atEnd()) {
        reader.readNext();
        if (!walk.take(reader))
            return false;
    }
    return !reader.hasError() && walk.isShort() && walk.isSoonStyled();
}

} // namespace Hintreels
