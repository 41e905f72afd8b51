// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "fuzz/FuzzTarget.h"
#include "support/Promises.h"

#include <QDir>
#include <QtTest>

/// Runs all inputs that fuzzing starts from, among them each that has ever broken something.
class tst_FuzzCorpus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void corpus_hasInputsForEachTarget();
    void target_keepsItsPromises_data();
    void target_keepsItsPromises();
};

namespace {

const QDir corpus(QStringLiteral(FUZZ_CORPUS));

QFileInfoList inputsOf(const char *target)
{
    return QDir(corpus.filePath(target)).entryInfoList(QDir::Files);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

} // namespace

void tst_FuzzCorpus::initTestCase()
{
    dropMessages();
}

void tst_FuzzCorpus::corpus_hasInputsForEachTarget()
{
    QStringList names;
    for (const FuzzTarget &target : fuzzTargets()) {
        names.append(target.name);
        QVERIFY2(!inputsOf(target.name).isEmpty(), target.name);
    }
    names.sort();
    QCOMPARE(corpus.entryList(QDir::Dirs | QDir::NoDotAndDotDot), names);
}

void tst_FuzzCorpus::target_keepsItsPromises_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<QString>("path");
    for (int i = 0; i < int(fuzzTargets().size()); ++i) {
        const char *name = fuzzTargets().at(size_t(i)).name;
        const QFileInfoList inputs = inputsOf(name);
        for (const QFileInfo &input : inputs)
            QTest::addRow("%s/%s", name, qPrintable(input.fileName())) << i << input.filePath();
    }
}

void tst_FuzzCorpus::target_keepsItsPromises()
{
    QFETCH(int, target);
    QFETCH(QString, path);
    fuzzTargets().at(size_t(target)).run(contentOf(path));
}

QTEST_MAIN(tst_FuzzCorpus)
#include "tst_FuzzCorpus.moc"
