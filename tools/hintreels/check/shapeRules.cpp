// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/ControlFile.h"
#include "hintreels/check/Rule.h"
#include "hintreels/check/elementShape.h"
#include "hintreels/check/nearestWord.h"

#include <iterator>

namespace Hintreels {

namespace {

/// Whether the names in an element are those of the standard user interface, as far as one can
/// tell; another one may know others.
bool isJudged(const Element &element)
{
    const HRXmlElement *entry = element.entry();
    return !entry || entry == element.node || element.file->isForStandardUi(*entry);
}

/// Whether elements of this name belong where the element stands.
bool isInPlace(const Element &element)
{
    const HRXmlElement *parent = element.parent();
    const auto shape = elementShapes().constFind(element.tag());
    return shape != elementShapes().constEnd()
        && shape->parent == (parent ? parent->getTagName() : QString());
}

void checkElementName(const Element &element, const Tell &tell)
{
    const HRXmlElement *parent = element.parent();
    if (!parent || isInPlace(element) || !isJudged(element))
        return;
    const QStringList known = elementsIn(parent->getTagName());
    if (!known.isEmpty()) // else it lies in an unknown one, or in a text
        tell(element.spot(),
            QStringLiteral("%1 knows no element %2").arg(parent->getTagName(), element.tag())
                + suggestion(element.tag(), known));
}

void checkElementInText(const Element &element, const Tell &tell)
{
    const HRXmlElement *parent = element.parent();
    const HRXmlElement *entry = element.entry();
    if (!parent || !entry || parent->parent() != entry || !isJudged(element))
        return;
    if (elementShapes().contains(parent->getTagName()))
        tell(element.spot(),
            QStringLiteral("%1 is left out of %2, with all that is in it")
                .arg(element.tag(), parent->getTagName()));
}

bool isNamespace(const QString &attribute)
{
    return attribute.startsWith(QLatin1String("xml"));
}

void checkAttributeName(const Element &element, const Tell &tell)
{
    if (!isInPlace(element) || !isJudged(element))
        return;
    const QStringList known = elementShapes().value(element.tag()).attributes;
    const QStringList names = element.node->attributeNames();
    for (const QString &name : names) {
        if (!known.contains(name) && !isNamespace(name))
            tell(element.spot(name),
                QStringLiteral("%1 knows no attribute %2").arg(element.tag(), name)
                    + suggestion(name, known));
    }
}

void checkMissingAttribute(const Element &element, const Tell &tell)
{
    const QString needed = elementShapes().value(element.tag()).needed;
    if (needed.isEmpty() || !isInPlace(element) || !isJudged(element))
        return;
    if (element.node->attribute(needed).trimmed().isEmpty())
        tell(element.spot(needed),
            QStringLiteral("%1 shows nothing without %2").arg(element.tag(), needed));
}

void checkValue(const Element &element, const Tell &tell)
{
    if (!isInPlace(element) || !isJudged(element))
        return;
    const QStringList names = element.node->attributeNames();
    for (const QString &name : names) {
        const QStringList known = valuesOf(element.tag(), name);
        const QString value = element.node->attribute(name);
        if (!known.isEmpty() && !known.contains(value))
            tell(element.spot(name),
                QStringLiteral("%1 cannot be \"%2\"").arg(name, value) + suggestion(value, known));
    }
}

constexpr Rule rules[] = {
    { "unknown-element", Severity::error, "An element has a name that nobody knows",
        "It is ignored together with its content: what you wrote is missing from the hint.",
        "Mend the name, or move the element to where it belongs. Hints of a user interface of "
        "your own may hold any elements.",
        "<hintreel key=\"toolPen\">\n  <summary>Draws a free line.</summary>\n</hintreel>",
        checkElementName, nullptr, nullptr },
    { "element-in-text", Severity::error, "XML elements stand inside of a text",
        "They are left out with all the words in them, so sentences have holes.",
        "Write formatting as Markdown: **strong**, *emphasis*, `code`.",
        "<text>Press **Shift** to keep the proportions.</text>", checkElementInText, nullptr,
        nullptr },
    { "unknown-attribute", Severity::error, "An attribute has a name that nobody knows",
        "It is ignored, so its value shows nowhere.", "Mend the name.",
        "<picture source=\"pen.png\" alt=\"A line\" width=\"320\"/>", checkAttributeName, nullptr,
        nullptr },
    { "missing-attribute", Severity::error, "An element lacks what it cannot do without",
        "It takes no room in the hint, as if it were not there. An entry without a key is "
        "never shown.",
        "Add the attribute.", "<keys press=\"Shift+Drag\">Draws a straight line.</keys>",
        checkMissingAttribute, nullptr, nullptr },
    { "unknown-value", Severity::warning, "An attribute has a value that nobody knows",
        "It counts as if it were not there: a note of an unknown kind is an ordinary note.",
        "Choose one of the values that the format knows.",
        "<note kind=\"warning\">This cannot be undone.</note>", checkValue, nullptr, nullptr },
};

} // namespace

std::vector<Rule> shapeRules()
{
    return { std::begin(rules), std::end(rules) };
}

} // namespace Hintreels
