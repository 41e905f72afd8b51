// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/database/HRIndexDatabase_p.h"

#include "context/printable_p.h"
#include "files/HRRegularFile_p.h"
#include "files/ownFile_p.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

namespace Hintreels {

namespace {

// A statement on a locked database waits this long, where Qt's own five seconds for each of a
// start's ten statements would look like a hang.
const QString connectOptions = QStringLiteral("QSQLITE_BUSY_TIMEOUT=100");
const QString waitForLocks = QStringLiteral("PRAGMA busy_timeout=100");
const QString doNotWaitForLocks = QStringLiteral("PRAGMA busy_timeout=0");

// Whoever holds the database may hold it for long, and a start asks for it once a control file.
constexpr int hasteMilliseconds = 1000;

// SQLite's primary result codes; extended ones carry them in the lowest byte.
constexpr int busyCode = 5;
constexpr int corruptCode = 11;
constexpr int noDatabaseCode = 26;

int primaryCode(const QSqlError &error)
{
    return error.nativeErrorCode().toInt() & 0xff;
}

// What our files carry in bytes 68 to 71 of their header: "HtRl".
constexpr int applicationId = 0x4874526c;
constexpr int applicationIdOffset = 68;
const QByteArray applicationIdBytes("HtRl");

bool isAllZeros(QFile &file)
{
    while (!file.atEnd()) {
        const QByteArray bytes = file.read(1 << 16);
        if (bytes.isEmpty() || bytes.count('\0') != bytes.size())
            return false;
    }
    return true;
}

/// Whether a file that SQLite cannot read is one of ours all the same: by the mark in its header,
/// by our tables, which stand in the first page, or by nothing but the zeros that a crash of the
/// machine may leave of a file. The names alone say little, since a host chooses them.
bool looksLikeOurs(const QString &path)
{
    QFile file(path);
    if (!openRegularFile(file, path))
        return false;
    const QByteArray page = file.read(4096);
    if (page.mid(applicationIdOffset, applicationIdBytes.size()) == applicationIdBytes
        || page.contains("CREATE TABLE hintreels")
        || page.contains("CREATE TABLE control_directories"))
        return true;
    return page.count('\0') == page.size() && isAllZeros(file);
}

/// Whether a row of the schema is one that our own statements could have made.
bool isOurRow(
    const QString &type, const QString &name, const QString &sql, const QStringList &tables)
{
    if (name.startsWith(QLatin1String("sqlite_")))
        return type == QLatin1String("table") || type == QLatin1String("index");
    return type == QLatin1String("table") && tables.contains(name)
        && sql.startsWith(QLatin1String("CREATE TABLE"));
}

} // namespace

void reportSqlError(const char *message, const QSqlError &error)
{
    qDebug().noquote() << printable(QLatin1String(message) + error.text());
}

bool isCorruption(const QSqlError &error)
{
    const int code = primaryCode(error);
    return code == corruptCode || code == noDatabaseCode;
}

bool isBusy(const QSqlError &error)
{
    return primaryCode(error) == busyCode;
}

bool markAsOurs(QSqlQuery &query)
{
    if (!query.exec(QStringLiteral("PRAGMA application_id")))
        return false;
    const bool isMarked = query.next() && query.value(0).toInt() != 0;
    query.finish();
    return isMarked || query.exec(QStringLiteral("PRAGMA application_id=%1").arg(applicationId));
}

HRIndexDatabase::~HRIndexDatabase()
{
    close();
}

bool HRIndexDatabase::open(
    const QString &connection, const QString &path, const QStringList &tables, bool isOwnPlace)
{
    close();
    m_isOwnPlace = isOwnPlace;
    m_isCorrupt = false;
    m_corruptFile.reset();
    m_wasBusy = false;
    m_isFailing = false;
    m_haste = QDeadlineTimer();
    m_handle = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
    m_handle.setConnectOptions(connectOptions);
    m_handle.setDatabaseName(path);
    const bool isOwn = takeOwnFile(path);
    m_found = stampOfFile(QFile::encodeName(path));
    if (isOwn && m_handle.open() && holdsOnly(tables)) {
        m_opened = stampOfFile(QFile::encodeName(path));
        return true;
    }
    close();
    return false;
}

void HRIndexDatabase::close()
{
    if (!m_handle.isValid())
        return;
    m_prepared.clear();
    const QString connection = m_handle.connectionName();
    // Connections are gone with the application, and somebody else may have taken the name since.
    const bool isStillOurs = QCoreApplication::instance()
        && QSqlDatabase::database(connection, false).driver() == m_handle.driver();
    m_handle.close();
    m_handle = QSqlDatabase();
    if (isStillOurs)
        QSqlDatabase::removeDatabase(connection);
}

void HRIndexDatabase::holdCorruptFile()
{
    if (!m_corruptFile && m_found)
        m_corruptFile.emplace(m_handle.databaseName(), *m_found);
}

void HRIndexDatabase::removeCorruptFile()
{
    if (m_corruptFile)
        m_corruptFile->remove();
    m_corruptFile.reset();
    forgetFile();
}

bool HRIndexDatabase::isSound()
{
    QSqlQuery query(m_handle);
    if (!query.exec(QStringLiteral("PRAGMA integrity_check(1)"))) {
        noteCorruption(isCorruption(query.lastError()));
        return !isCorruption(query.lastError());
    }
    const bool isSound = !query.next() || query.value(0).toString() == QLatin1String("ok");
    noteCorruption(!isSound);
    return isSound;
}

bool HRIndexDatabase::execute(const char *statement, const char *message)
{
    QSqlQuery query(m_handle);
    if (query.exec(QLatin1String(statement)))
        return true;
    noteCorruption(isCorruption(query.lastError()));
    reportSqlError(message, query.lastError());
    return false;
}

bool HRIndexDatabase::lock(const char *message)
{
    if (m_isFailing && !m_haste.hasExpired())
        return false;
    const bool isLocked
        = (!m_wasBusy || isFree(message)) && !isBusy(ask("BEGIN IMMEDIATE", message));
    m_wasBusy = !isLocked;
    return isLocked;
}

bool HRIndexDatabase::commit(const char *message)
{
    const QSqlError error = ask("COMMIT", message);
    m_wasBusy = isBusy(error);
    m_isFailing = error.isValid() && !m_wasBusy;
    if (m_isFailing) {
        noteCorruption(isCorruption(error));
        reportSqlError(message, error);
        m_haste.setRemainingTime(hasteMilliseconds);
    }
    if (error.isValid())
        m_handle.rollback();
    return !error.isValid();
}

/// Whether nobody else, readers included, holds the database. Asked for before everything that it
/// was too busy for is written anew.
bool HRIndexDatabase::isFree(const char *message)
{
    if (isBusy(ask("BEGIN EXCLUSIVE", message)))
        return false;
    ask("COMMIT", message);
    return true;
}

/// Runs a statement that may find the database busy, and reports it where it has waited.
QSqlError HRIndexDatabase::ask(const char *statement, const char *message)
{
    const bool hurries = !m_haste.hasExpired();
    if (hurries)
        QSqlQuery(m_handle).exec(doNotWaitForLocks);
    QSqlQuery &query = prepared(statement);
    QSqlError error = query.exec() ? QSqlError() : query.lastError();
    query.finish();
    if (hurries)
        QSqlQuery(m_handle).exec(waitForLocks);
    else if (isBusy(error)) {
        reportSqlError(message, error);
        m_haste.setRemainingTime(hasteMilliseconds);
    }
    return error;
}

/// The statements around each control file: SQLite would take as long to read them as to run them.
QSqlQuery &HRIndexDatabase::prepared(const char *statement)
{
    const auto known = m_prepared.find(statement);
    if (known != m_prepared.end())
        return known->second;
    QSqlQuery &query = m_prepared.emplace(statement, QSqlQuery(m_handle)).first->second;
    query.prepare(QLatin1String(statement));
    return query;
}

bool HRIndexDatabase::holdsOnly(const QStringList &tables)
{
    QSqlQuery query(m_handle);
    if (!query.exec(QStringLiteral("SELECT type, name, sql FROM sqlite_master"))) {
        noteCorruption(isCorruption(query.lastError()));
        return false;
    }
    bool isEmpty = true;
    while (query.next()) {
        isEmpty = false;
        if (!isOurRow(query.value(0).toString(), query.value(1).toString(),
                query.value(2).toString(), tables))
            return false;
    }
    return !isEmpty || holdsNothing() || isOurs();
}

/// Whether an empty schema is the truth: after damage to its page it may hide somebody's tables.
bool HRIndexDatabase::holdsNothing()
{
    return pragma("PRAGMA page_count") - pragma("PRAGMA freelist_count") <= 1;
}

bool HRIndexDatabase::isOurs() const
{
    const QString path = m_handle.databaseName();
    if (m_isOwnPlace || looksLikeOurs(path))
        return true;
    const std::optional<HRFileStamp> stamp = stampOfFile(QFile::encodeName(path));
    return stamp && m_opened && stamp->inode == m_opened->inode
        && stamp->device == m_opened->device;
}

void HRIndexDatabase::noteCorruption(bool isCorruption)
{
    if (!isCorruption || m_isCorrupt || !isOurs())
        return;
    m_isCorrupt = true;
    holdCorruptFile();
}

qint64 HRIndexDatabase::pragma(const char *statement)
{
    QSqlQuery query(QLatin1String(statement), m_handle);
    return query.next() ? query.value(0).toLongLong() : 0;
}

} // namespace Hintreels
