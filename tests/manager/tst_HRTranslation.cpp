// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRTranslation_p.h"

#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Hintreels;

namespace {

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeFile(const QString &path, const QByteArray &data)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(data) == data.size();
}

} // namespace

class tst_HRTranslation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void translate_findsTextInItsContext_data();
    void translate_findsTextInItsContext();
    void translate_returnsText_whenFileIsMissing();
    void translate_triesAgain_whenFileAppears();
    void translate_keepsLoadedFile_whenItIsDeleted();
    void translate_returnsText_whenPathIsNoRegularFile();
    void translate_switchesFiles();
    void translate_returnsText_whenFileNamesItselfAsADependency();

private:
    QTemporaryDir m_directory;
    const QString m_file = TEST_TRANSLATION;
};

void tst_HRTranslation::init()
{
    QVERIFY(QFileInfo::exists(m_file));
}

void tst_HRTranslation::translate_findsTextInItsContext_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("expected");
    QTest::newRow("known") << "Tip"
                           << "StandardUI"
                           << "Tipp";
    QTest::newRow("UTF-8") << "Straße"
                           << "Content"
                           << "Weg";
    QTest::newRow("other context") << "Tip"
                                   << "Content" << QString();
    QTest::newRow("unknown") << "Hint"
                             << "StandardUI" << QString();
}

void tst_HRTranslation::translate_findsTextInItsContext()
{
    QFETCH(QString, text);
    QFETCH(QString, context);
    QFETCH(QString, expected);
    QObject parent;
    HRTranslation translation(&parent);
    const QString result = translation.translate(m_file, text, context);
    QCOMPARE(result, expected);
    QCOMPARE(result.isNull(), expected.isNull());
    QCOMPARE(parent.findChildren<QTranslator *>().size(), 1);
}

void tst_HRTranslation::translate_returnsText_whenFileIsMissing()
{
    QObject parent;
    HRTranslation translation(&parent);
    QCOMPARE(
        translation.translate(m_directory.filePath("no.qm"), "Tip", "StandardUI"), QString("Tip"));
}

void tst_HRTranslation::translate_triesAgain_whenFileAppears()
{
    QObject parent;
    HRTranslation translation(&parent);
    const QString path = m_directory.filePath("late.qm");
    QCOMPARE(translation.translate(path, "Tip", "StandardUI"), QString("Tip"));
    QVERIFY(QFile::copy(m_file, path));
    QCOMPARE(translation.translate(path, "Tip", "StandardUI"), QString("Tipp"));
}

void tst_HRTranslation::translate_keepsLoadedFile_whenItIsDeleted()
{
    QObject parent;
    HRTranslation translation(&parent);
    const QString path = m_directory.filePath("gone.qm");
    QVERIFY(QFile::copy(m_file, path));
    QCOMPARE(translation.translate(path, "Tip", "StandardUI"), QString("Tipp"));
    QVERIFY(QFile::remove(path));
    QCOMPARE(translation.translate(path, "Tip", "StandardUI"), QString("Tipp"));
}

void tst_HRTranslation::translate_returnsText_whenPathIsNoRegularFile()
{
    QObject parent;
    HRTranslation translation(&parent);
    QCOMPARE(translation.translate(m_directory.path(), "Tip", "StandardUI"), QString("Tip"));
#ifdef Q_OS_UNIX
    const QString pipe = m_directory.filePath("pipe.qm");
    QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
    QCOMPARE(translation.translate(pipe, "Tip", "StandardUI"), QString("Tip"));
#endif
}

void tst_HRTranslation::translate_switchesFiles()
{
    QObject parent;
    HRTranslation translation(&parent);
    QCOMPARE(translation.translate(m_file, "Tip", "StandardUI"), QString("Tipp"));
    QCOMPARE(translation.translate("no.qm", "Tip", "StandardUI"), QString("Tip"));
    QCOMPARE(translation.translate(m_file, "Tip", "StandardUI"), QString("Tipp"));
}

void tst_HRTranslation::translate_returnsText_whenFileNamesItselfAsADependency()
{
    QByteArray dependency;
    QDataStream stream(&dependency, QIODevice::WriteOnly);
    stream << QString("self.qm");
    QByteArray section;
    QDataStream sectionStream(&section, QIODevice::WriteOnly);
    sectionStream << quint8(0x96) << quint32(dependency.size());
    const QByteArray data = readFile(m_file).left(16) + section + dependency;
    const QString path = m_directory.filePath("self.qm");
    QVERIFY(writeFile(path, data));
    QObject parent;
    QCOMPARE(HRTranslation(&parent).translate(path, "Tip", "StandardUI"), QString("Tip"));
}

QTEST_APPLESS_MAIN(tst_HRTranslation)
#include "tst_HRTranslation.moc"
