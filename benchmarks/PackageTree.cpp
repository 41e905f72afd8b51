// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "PackageTree.h"

#include "Measuring.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <chrono>
#include <map>
#include <memory>
#include <thread>

namespace {

constexpr int FilesInPackage = 200;
constexpr int EntriesInFile = 20;
constexpr quint32 Seed = 20261121;

const char *const Words[]
    = { "draw", "line", "select", "the", "layer", "with", "colour", "drag", "corner", "hold",
          "shift", "to", "keep", "ratio", "of", "shape", "and", "release", "canvas", "point" };

QByteArray sentence(QRandomGenerator &random, int words)
{
    QByteArray text;
    for (int i = 0; i < words; ++i)
        text += QByteArray(Words[random.bounded(int(std::size(Words)))]) + ' ';
    return text;
}

QByteArray entry(QRandomGenerator &random, const QByteArray &key)
{
    return "  <hintreel key=\"" + key + "\">\n    <title>" + sentence(random, 3)
        + "</title>\n    <summary>" + sentence(random, 12) + "</summary>\n    <text><![CDATA["
        + sentence(random, 40) + "\n\n**" + sentence(random, 6) + "**\n\n" + sentence(random, 60)
        + "]]></text>\n    <picture source=\"Resources/" + key
        + ".png\" width=\"320\"/>\n    <note>" + sentence(random, 30)
        + "</note>\n    <note kind=\"tip\">" + sentence(random, 30)
        + "</note>\n    <link target=\"help/" + key + ".html\">" + sentence(random, 4)
        + "</link>\n  </hintreel>\n";
}

} // namespace

PackageTree::PackageTree(int fileCount)
{
    for (int i = 0; i < fileCount; ++i) {
        const QString package = QString("%1/Suite%2.hintreels")
                                    .arg(path())
                                    .arg(i / FilesInPackage, 3, 10, QChar('0'));
        const QString control = package + "/Control";
        if (i % FilesInPackage == 0) {
            QDir().mkpath(control);
            m_controlDirectories.push_back(QFile::encodeName(control));
        }
        const QString file = QString("%1/commands%2.xml").arg(control).arg(i, 5, 10, QChar('0'));
        m_files.push_back({ file, QFile::encodeName(file), package });
        write(i, 0);
    }
}

QString PackageTree::path() const
{
    return QFileInfo(m_directory.path()).canonicalFilePath();
}

QStringList PackageTree::locales()
{
    return { "en_US", "de_DE", "fr_FR", "es_ES", "it_IT", "pt_BR", "ja_JP", "zh_CN", "ko_KR",
        "ru_RU", "pl_PL", "nl_NL" };
}

QString PackageTree::keyOf(int file, int entry)
{
    const int dozen = file / int(locales().size());
    return QString("suite.module%1.command%2").arg(dozen, 4, 10, QChar('0')).arg(entry);
}

QString PackageTree::localeOf(int file)
{
    return locales().at(file % int(locales().size()));
}

qint64 PackageTree::keyBytes() const
{
    qint64 bytes = 0;
    for (int file = 0; file < int(m_files.size()); ++file) {
        for (int i = 0; i < EntriesInFile; ++i)
            bytes += keyOf(file, i).toUtf8().size();
    }
    return bytes;
}

void PackageTree::edit(int file)
{
    write(file, ++m_edition);
}

void PackageTree::write(int file, int edition)
{
    QRandomGenerator random(Seed + quint32(file));
    QByteArray content = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<hintreels locale=\""
        + localeOf(file).toUtf8() + "\" search=\"Standard\">\n";
    for (int i = 0; i < EntriesInFile; ++i)
        content += entry(random, keyOf(file, i).toUtf8());
    content += "</hintreels>\n<!-- edition " + QByteArray::number(edition) + " -->\n";
    QFile output(m_files.at(size_t(file)).path);
    if (!output.open(QIODevice::WriteOnly) || output.write(content) != content.size())
        cannotMeasure("cannot write " + output.fileName());
}

PackageTree &settledTree(int fileCount)
{
    static std::map<int, std::unique_ptr<PackageTree>> trees;
    std::unique_ptr<PackageTree> &tree = trees[fileCount];
    if (!tree) {
        tree = std::make_unique<PackageTree>(fileCount);
        waitUntilSettled();
    }
    return *tree;
}

void waitUntilSettled()
{
    std::this_thread::sleep_for(std::chrono::milliseconds(2600));
}
