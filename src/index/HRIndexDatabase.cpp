// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRIndexDatabase_p.h"

#include "index/HRPosixFile_p.h"

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
const QString ConnectOptions = QStringLiteral("QSQLITE_BUSY_TIMEOUT=100");

// SQLite's primary result codes; extended ones carry them in the lowest byte.
constexpr int BusyCode = 5;
constexpr int CorruptCode = 11;
constexpr int NoDatabaseCode = 26;

int primaryCode(const QSqlError &error)
{
    return error.nativeErrorCode().toInt() & 0xff;
}

/// Tells a damaged database from a file that never was one: by the head of every database, by our
/// tables, which stand in the first page, or by nothing but the zeros that a crash of the machine
/// may leave of a file.
bool startsLikeDatabase(const QString &path)
{
    QFile file(path);
    if (!openRegularFile(file, path))
        return false;
    const QByteArray page = file.read(4096);
    return page.startsWith(QByteArray("SQLite format 3", 16))
        || page.contains("CREATE TABLE hintreels")
        || page.contains("CREATE TABLE control_directories") || page.count('\0') == page.size();
}

/// Whether a row of the schema is one that our own statements could have made.
bool isOurs(const QString &type, const QString &name, const QString &sql, const QStringList &tables)
{
    if (name.startsWith(QLatin1String("sqlite_")))
        return type == QLatin1String("table") || type == QLatin1String("index");
    return type == QLatin1String("table") && tables.contains(name)
        && sql.startsWith(QLatin1String("CREATE TABLE"));
}

} // namespace

void reportSqlError(const char *message, const QSqlError &error)
{
    qDebug().noquote() << QLatin1String(message) + error.text();
}

bool isDamage(const QSqlError &error)
{
    const int code = primaryCode(error);
    return code == CorruptCode || code == NoDatabaseCode;
}

bool isRefusal(const QSqlError &error)
{
    return primaryCode(error) == BusyCode;
}

HRIndexDatabase::~HRIndexDatabase()
{
    close();
}

bool HRIndexDatabase::open(
    const QString &connection, const QString &path, const QStringList &tables)
{
    close();
    m_damaged = false;
    m_handle = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
    m_handle.setConnectOptions(ConnectOptions);
    m_handle.setDatabaseName(path);
    if (takeOwnFile(path) && m_handle.open() && holdsOnly(tables))
        return true;
    close();
    return false;
}

void HRIndexDatabase::close()
{
    if (!m_handle.isValid())
        return;
    const QString connection = m_handle.connectionName();
    // Connections are gone with the application, and somebody else may have taken the name since.
    const bool isStillOurs = QCoreApplication::instance()
        && QSqlDatabase::database(connection, false).driver() == m_handle.driver();
    m_handle.close();
    m_handle = QSqlDatabase();
    if (isStillOurs)
        QSqlDatabase::removeDatabase(connection);
}

bool HRIndexDatabase::isSound()
{
    QSqlQuery query(m_handle);
    if (!query.exec(QStringLiteral("PRAGMA integrity_check(1)")))
        return !noteDamage(query.lastError());
    m_damaged = query.next() && query.value(0).toString() != QLatin1String("ok");
    return !m_damaged;
}

bool HRIndexDatabase::execute(const char *statement, const char *message)
{
    QSqlQuery query(m_handle);
    if (query.exec(QLatin1String(statement)))
        return true;
    noteDamage(query.lastError());
    reportSqlError(message, query.lastError());
    return false;
}

bool HRIndexDatabase::lock(const char *message)
{
    QSqlQuery query(m_handle);
    if (query.exec(QStringLiteral("BEGIN IMMEDIATE")) || !isRefusal(query.lastError()))
        return true;
    reportSqlError(message, query.lastError());
    return false;
}

bool HRIndexDatabase::commit(const char *message)
{
    if (m_handle.commit())
        return true;
    noteDamage(m_handle.lastError());
    reportSqlError(message, m_handle.lastError());
    m_handle.rollback();
    return false;
}

bool HRIndexDatabase::holdsOnly(const QStringList &tables)
{
    QSqlQuery query(m_handle);
    if (!query.exec(QStringLiteral("SELECT type, name, sql FROM sqlite_master"))) {
        noteDamage(query.lastError());
        return false;
    }
    while (query.next()) {
        if (!isOurs(query.value(0).toString(), query.value(1).toString(), query.value(2).toString(),
                tables))
            return false;
    }
    return true;
}

bool HRIndexDatabase::noteDamage(const QSqlError &error)
{
    const int code = primaryCode(error);
    m_damaged = m_damaged || code == CorruptCode
        || (code == NoDatabaseCode && startsLikeDatabase(m_handle.databaseName()));
    return m_damaged;
}

} // namespace Hintreels
