// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "popup/BareView.h"

#include "ui/reader/HRSceneSettings_p.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QtQml>

using namespace Hintreels;

namespace {

template <typename T>
void nameType(const char *name)
{
    qmlRegisterUncreatableType<T>("com.zentora.hintreels.qml", 1, 1, name, {});
}

} // namespace

StandInView::StandInView()
{
    nameType<StandInView>("HRView");
    nameType<HRContentReader>("HRContentReader");
}

StandInReader::StandInReader()
    : HRContentReader([] { return sceneSettings(); })
{
}

QVariantMap StandInReader::read(HRXmlElement *element, const QJSValue &) const
{
    const auto *content = qobject_cast<const StandInElement *>(element);
    return content ? content->values() : QVariantMap();
}

QVariantList StandInReader::keyCaps(const QString &shortcut) const
{
    return { QVariant(shortcut.split('+', Qt::SkipEmptyParts)) };
}

QVariantList StandInReader::showMarkdown(QQuickTextDocument *document, const QString &markdown,
    const QVariantMap &look, const QJSValue &) const
{
    document->textDocument()->setMarkdown(markdown);
    QTextBlockFormat format;
    format.setTopMargin(0);
    format.setBottomMargin(0);
    format.setLineHeight(120, QTextBlockFormat::ProportionalHeight);
    document->textDocument()->setIndentWidth(look.value("spacing").toReal());
    QTextCursor cursor(document->textDocument());
    cursor.select(QTextCursor::Document);
    cursor.mergeBlockFormat(format);
    return {};
}

BareView::BareView(QObject &view)
{
    m_window.setFlags(Qt::ToolTip | Qt::FramelessWindowHint);
    m_window.setResizeMode(QQuickView::SizeViewToRootObject);
    m_window.rootContext()->setContextProperty("hintreelView", &view);
    m_window.rootContext()->setContextProperty("hintreelReader", &m_reader);
}

void BareView::show(const PopupContent &content, const QPoint &position)
{
    auto element = std::make_unique<StandInElement>(content.values());
    m_window.rootContext()->setContextProperty("hintreel", element.get());
    m_element = std::move(element);
    if (m_window.source().isEmpty())
        m_window.setSource(
            QUrl::fromLocalFile(HINTREELS_PACKAGES "/Standard.hintreels/ui/HintreelUI.qml"));
    // Before it is shown: the view itself follows its content a frame later.
    m_window.setGeometry(QRect(position, m_window.rootObject()->size().toSize()));
    m_window.show();
}
