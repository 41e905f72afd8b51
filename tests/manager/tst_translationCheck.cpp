// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/translationCheck_p.h"

#include <QtTest>

using namespace Hintreels;

namespace {

const QByteArray magic = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");

QByteArray number16(quint16 value)
{
    QByteArray bytes(2, Qt::Uninitialized);
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray number32(quint32 value)
{
    QByteArray bytes(4, Qt::Uninitialized);
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray section(uchar tag, const QByteArray &data)
{
    return char(tag) + number32(quint32(data.size())) + data;
}

QByteArray contexts(const QByteArray &data)
{
    return section(0x2f, data);
}

QByteArray hashes(const QByteArray &data)
{
    return section(0x42, data);
}

QByteArray messages(const QByteArray &data)
{
    return section(0x69, data);
}

/// A table of contexts: the offsets that its slots name, and the chains behind them.
QByteArray contextTable(const QVector<quint16> &slotOffsets, const QByteArray &chains)
{
    QByteArray table = number16(quint16(slotOffsets.size()));
    for (const quint16 offset : slotOffsets)
        table += number16(offset);
    return table + chains;
}

/// A table of hashes whose messages begin at these offsets.
QByteArray hashTable(const QVector<quint32> &offsets)
{
    QByteArray table;
    for (const quint32 offset : offsets)
        table += number32(0x12345678) + number32(offset);
    return table;
}

QByteArray field(uchar tag, const QByteArray &data)
{
    return char(tag) + number32(quint32(data.size())) + data;
}

const QByteArray translation = field(3, QByteArray("\0H\0i", 4));
const QByteArray end(1, '\x01');

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Translates texts that the file has and has not, so that every road through it is taken.
void translateAll(const QByteArray &data)
{
    QTranslator translator;
    if (!translator.load(reinterpret_cast<const uchar *>(data.constData()), data.size()))
        return;
    for (const char *context : { "StandardUI", "Content", "None" }) {
        for (const char *text : { "Documentation", "Tip", "Straße", "nothing" })
            translator.translate(context, text);
    }
}

} // namespace

class tst_translationCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isSafeTranslation_readsSections_data();
    void isSafeTranslation_readsSections();
    void isSafeTranslation_checksContexts_data();
    void isSafeTranslation_checksContexts();
    void isSafeTranslation_checksMessages_data();
    void isSafeTranslation_checksMessages();
    void isSafeTranslation_readsEachByteOnce_whateverManyPointAt();
    void isSafeTranslation_acceptsWhatLreleaseWrites();
    void isSafeTranslation_keepsTranslatorInBounds_whenCut();
    void isSafeTranslation_keepsTranslatorInBounds_whenAnyByteChanges();

private:
    const QString m_file = TEST_TRANSLATION;
};

void tst_translationCheck::isSafeTranslation_readsSections_data()
{
    const QByteArray broken = hashes("odd");
    const QByteArray emptySection = section(0x17, {});
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<bool>("isSafe");
    QTest::newRow("nothing") << QByteArray() << false;
    QTest::newRow("a cut magic number") << magic.left(15) << false;
    QTest::newRow("another magic number") << QByteArray(16, 'm') << false;
    QTest::newRow("nothing but a magic number") << magic << true;
    QTest::newRow("an unknown section") << magic + section(0x17, "what") << true;
    QTest::newRow("a section of one byte") << magic + section(0x17, "w") << true;
    QTest::newRow("a broken section") << magic + broken << false;
    QTest::newRow("a broken section behind another")
        << magic + section(0x17, "w") + broken << false;
    QTest::newRow("a broken section behind the end") << magic + section(0, "w") + broken << true;
    QTest::newRow("a broken section behind an empty one") << magic + emptySection + broken << true;
    QTest::newRow("a section that ends with the file")
        << magic + '\x17' + number32(4) + "what" << true;
    QTest::newRow("a section longer by one than the file")
        << magic + '\x17' + number32(5) + "what" << false;
    QTest::newRow("a section as long as numbers go")
        << magic + '\x17' + number32(0xffffffff) + "what" << false;
    QTest::newRow("a head of a section without data") << magic + '\x17' + number32(1) << true;
    QTest::newRow("a head with one byte of two") << magic + '\x17' + number32(2) + 'w' << false;
    QTest::newRow("a cut head of a section") << magic + "\x17w" << true;
    QTest::newRow("dependencies") << magic + section(0x96, "self.qm") << false;
    QTest::newRow("dependencies behind another section")
        << magic + section(0x17, "what") + section(0x96, "self.qm") << false;
    QTest::newRow("a section named twice, the last broken")
        << magic + hashes(QByteArray(8, 0)) + broken << false;
    QTest::newRow("a section named twice, the first broken")
        << magic + broken + hashes(QByteArray(8, 0)) << true;
}

void tst_translationCheck::isSafeTranslation_readsSections()
{
    QFETCH(QByteArray, file);
    QTEST(isSafeTranslation(file), "isSafe");
}

void tst_translationCheck::isSafeTranslation_checksContexts_data()
{
    const QByteArray padding(2, 0);
    QTest::addColumn<QByteArray>("table");
    QTest::addColumn<bool>("isSafe");
    QTest::newRow("no slot") << contextTable({}, {}) << false;
    QTest::newRow("no slot, but names") << contextTable({}, "\4Main") << false;
    QTest::newRow("half a count") << QByteArray(1, '\1') << false;
    QTest::newRow("an empty slot") << contextTable({ 0 }, {}) << true;
    QTest::newRow("empty slots") << contextTable({ 0, 0, 0 }, {}) << true;
    QTest::newRow("fewer slots than counted") << contextTable({ 0, 0 }, {}).chopped(1) << false;
    QTest::newRow("slots that end with the table") << number16(2) + QByteArray(4, 0) << true;
    QTest::newRow("twice the slots that there are") << number16(2) + QByteArray(2, 0) << false;
    QTest::newRow("a chain of one name")
        << contextTable({ 1 }, padding + QByteArray("\4Main\0", 6)) << true;
    QTest::newRow("a chain of two names")
        << contextTable({ 1 }, padding + QByteArray("\4Main\3Tip\0", 10)) << true;
    QTest::newRow("a chain without a name") << contextTable({ 1 }, padding + '\0') << true;
    QTest::newRow("a chain without its end") << contextTable({ 1 }, padding + "\4Main") << false;
    QTest::newRow("two names without an end")
        << contextTable({ 1 }, padding + "\4Main\3Tip") << false;
    QTest::newRow("a name longer than the table")
        << contextTable({ 1 }, padding + QByteArray("\6Main\0", 6)) << false;
    QTest::newRow("a name of the greatest length")
        << contextTable({ 1 }, padding + '\xff' + QByteArray(255, 'm') + '\0') << true;
    QTest::newRow("a name of the greatest length without its end")
        << contextTable({ 1 }, padding + '\xff' + QByteArray(255, 'm')) << false;
    QTest::newRow("a chain behind the table") << contextTable({ 1 }, padding) << false;
    QTest::newRow("a chain far behind the table") << contextTable({ 0xffff }, padding) << false;
    QTest::newRow("a chain at the last byte") << contextTable({ 2 }, QByteArray(5, 0)) << true;
    QTest::newRow("offsets are units of two bytes")
        << contextTable({ 2 }, QByteArray("\0\0\7x\0", 5)) << true;
    QTest::newRow("a later slot counts") << contextTable({ 0, 0, 1 }, padding + "\4Main") << false;
    QTest::newRow("a slot behind a good chain counts")
        << contextTable({ 1, 3 }, QByteArray("\0\0\2xy\0\4Main", 11)) << false;
    QTest::newRow("slots that share a chain")
        << contextTable({ 1, 1 }, padding + QByteArray("\4Main\0", 6)) << true;
    QTest::newRow("a chain that begins inside of a name")
        << contextTable({ 1, 2 }, QByteArray("\0\0\4a\7bc\0", 8)) << false;
}

void tst_translationCheck::isSafeTranslation_checksContexts()
{
    QFETCH(QByteArray, table);
    QTEST(isSafeTranslation(magic + contexts(table)), "isSafe");
}

void tst_translationCheck::isSafeTranslation_checksMessages_data()
{
    QTest::addColumn<QByteArray>("hashed");
    QTest::addColumn<QByteArray>("fields");
    QTest::addColumn<bool>("isSafe");
    const QByteArray first = hashTable({ 0 });
    QTest::newRow("a message") << first << translation + end << true;
    QTest::newRow("every field there is")
        << first << translation + field(6, "Hi") + field(7, "Main") + field(8, "why") + end << true;
    QTest::newRow("a field that ends with the messages") << first << translation << false;
    QTest::newRow("an empty comment") << first << field(8, "") + end << true;
    QTest::newRow("an empty comment that ends with the messages") << first << field(8, "") << false;
    QTest::newRow("a field longer by one") << first << translation.chopped(1) << false;
    QTest::newRow("a field as long as numbers go")
        << first << '\6' + number32(0xffffffff) + "Hi" << false;
    QTest::newRow("a field without a length") << first << QByteArray(1, '\6') << false;
    QTest::newRow("half a character") << first << field(3, "\1H\1") + end << false;
    QTest::newRow("an odd source text") << first << field(6, "Tip") + end << true;
    QTest::newRow("an odd context") << first << field(7, "Tip") + end << true;
    QTest::newRow("an odd comment") << first << field(8, "Tip") + end << true;
    QTest::newRow("an obsolete field") << first << '\5' + number32(0) + translation + end << true;
    QTest::newRow("an obsolete field has no length")
        << first << '\5' + number32(99) + translation + end << true;
    QTest::newRow("a broken field behind an obsolete one")
        << first << '\5' + number32(0) + translation.chopped(1) << false;
    QTest::newRow("a cut obsolete field") << first << QByteArray("\5\0\0\0", 4) << false;
    QTest::newRow("a broken field behind each other kind")
        << first << field(6, "Hi") + field(7, "Main") + field(8, "why") + field(3, "odd") << false;
    QTest::newRow("a broken field behind the end") << first << end + field(3, "odd") << true;
    QTest::newRow("a broken field behind an unknown one")
        << first << field(9, "") + field(3, "odd") << true;
    QTest::newRow("no hash") << QByteArray() << field(3, "odd") << true;
    QTest::newRow("hashes that are cut") << first.chopped(1) << end << false;
    QTest::newRow("half a hash too many") << first + number32(0) << end << false;
    QTest::newRow("an offset at the end") << hashTable({ 1 }) << end << true;
    QTest::newRow("an offset behind the end") << hashTable({ 2 }) << end << false;
    QTest::newRow("the second message counts")
        << hashTable({ 0, 1 }) << end + field(3, "odd") << false;
    QTest::newRow("the last of three messages counts")
        << hashTable({ 0, 0, 1 }) << end + field(3, "odd") << false;
    QTest::newRow("the hash itself is no offset") << hashTable({ 0 }) << end << true;
    QTest::newRow("a message in the middle of another")
        << hashTable({ 0, 5 }) << field(6, field(3, "odd")) + end << false;
    QTest::newRow("messages that share their end")
        << hashTable({ 0, 9 }) << translation + field(6, "Hi") + end << true;
}

void tst_translationCheck::isSafeTranslation_checksMessages()
{
    QFETCH(QByteArray, hashed);
    QFETCH(QByteArray, fields);
    QTEST(isSafeTranslation(magic + hashes(hashed) + messages(fields)), "isSafe");
}

/// Were they followed anew for each that points at them, this would take minutes.
void tst_translationCheck::isSafeTranslation_readsEachByteOnce_whateverManyPointAt()
{
    constexpr int many = 400000;
    const QByteArray fields = ('\5' + number32(0)).repeated(many) + end;
    const QByteArray hashed = hashTable({ 0 }).repeated(many);
    QVERIFY(isSafeTranslation(magic + hashes(hashed) + messages(fields)));

    const QByteArray chain = QByteArray(2, 0) + QByteArray("\1m").repeated(2 * many) + '\0';
    const QVector<quint16> everySlot(0xffff, 1);
    QVERIFY(isSafeTranslation(magic + contexts(contextTable(everySlot, chain))));
}

void tst_translationCheck::isSafeTranslation_acceptsWhatLreleaseWrites()
{
    QVERIFY(isSafeTranslation(readFile(m_file)));
    const QDir qtTranslations(QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    for (const QString &name : qtTranslations.entryList({ "*.qm" })) {
        const QByteArray data = readFile(qtTranslations.filePath(name));
        // What only names other files is refused on purpose.
        if (!data.contains('\x96'))
            QVERIFY2(isSafeTranslation(data), qPrintable(name));
    }
}

void tst_translationCheck::isSafeTranslation_keepsTranslatorInBounds_whenCut()
{
    const QByteArray data = readFile(m_file);
    for (int size = 0; size < data.size(); ++size) {
        // A copy of its own, so that a checker of memory sees the end.
        const QByteArray cut(data.constData(), size);
        if (isSafeTranslation(cut))
            translateAll(cut);
    }
}

void tst_translationCheck::isSafeTranslation_keepsTranslatorInBounds_whenAnyByteChanges()
{
    const QByteArray data = readFile(m_file);
    int accepted = 0;
    for (int i = 0; i < data.size(); ++i) {
        for (const char value : { '\x00', '\x01', '\x7f', '\xff' }) {
            QByteArray changed = data;
            changed[i] = value;
            if (!isSafeTranslation(changed))
                continue;
            ++accepted;
            translateAll(changed);
        }
    }
    QVERIFY(accepted > 0);
    QVERIFY(accepted < data.size() * 4);
}

QTEST_APPLESS_MAIN(tst_translationCheck)
#include "tst_translationCheck.moc"
