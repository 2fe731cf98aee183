#include "tests/host/desktop/screenshots/look_faults.h"

#include <QtGui/QGlyphRun>
#include <QtGui/QScreen>
#include <QtGui/QTextLayout>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QStyleOptionComboBox>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace {

/// A text that a widget shows, and the size that it has for it.
struct CShownText {
    QString m_strText; ///< without mnemonics
    QSize m_room;
    QFont m_font;
};

QString WithoutMnemonics(QString strText) {
    return strText.remove(u'&');
}

CShownText TextOf(const QLabel& label) {
    const bool bRich = label.textFormat() == Qt::RichText ||
                       (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(label.text()));
    if (!label.wordWrap() && !bRich)
        return {label.buddy() ? WithoutMnemonics(label.text()) : label.text(), label.contentsRect().size(),
                label.font()};
    // What is wrapped is cut only when it is too high.
    return {label.heightForWidth(label.width()) > label.height() ? label.text() : QString(), QSize(),
            label.font()};
}

CShownText TextOfButton(const QAbstractButton& button, QStyle::SubElement element) {
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    return {WithoutMnemonics(button.text()), button.style()->subElementRect(element, &option, &button).size(),
            button.font()};
}

CShownText TextOf(const QAbstractButton& button) {
    if (qobject_cast<const QCheckBox*>(&button)) return TextOfButton(button, QStyle::SE_CheckBoxContents);
    if (qobject_cast<const QRadioButton*>(&button))
        return TextOfButton(button, QStyle::SE_RadioButtonContents);
    if (qobject_cast<const QPushButton*>(&button)) return TextOfButton(button, QStyle::SE_PushButtonContents);
    const auto* const pTool = qobject_cast<const QToolButton*>(&button);
    if (pTool && pTool->toolButtonStyle() == Qt::ToolButtonIconOnly && !pTool->icon().isNull())
        return {QString(), button.size(), button.font()};
    return {WithoutMnemonics(button.text()), button.size(), button.font()};
}

CShownText TextOf(const QComboBox& combo) {
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    return {combo.currentText(),
            combo.style()
                ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo)
                .size(),
            combo.font()};
}

/// The texts of a widget by itself, those of its children not among them.
std::vector<CShownText> TextsOf(const QWidget& widget) {
    std::vector<CShownText> arTexts;
    if (const auto* pLabel = qobject_cast<const QLabel*>(&widget)) {
        arTexts.push_back(TextOf(*pLabel));
    } else if (const auto* pButton = qobject_cast<const QAbstractButton*>(&widget)) {
        arTexts.push_back(TextOf(*pButton));
    } else if (const auto* pCombo = qobject_cast<const QComboBox*>(&widget)) {
        arTexts.push_back(TextOf(*pCombo));
    } else if (const auto* pGroup = qobject_cast<const QGroupBox*>(&widget)) {
        arTexts.push_back({WithoutMnemonics(pGroup->title()), pGroup->size(), pGroup->font()});
    } else if (const auto* pEdit = qobject_cast<const QLineEdit*>(&widget)) {
        // Its text scrolls; it must be high enough for a line.
        arTexts.push_back({pEdit->text(), QSize(QWIDGETSIZE_MAX, pEdit->height()), pEdit->font()});
    } else if (const auto* pTabs = qobject_cast<const QTabBar*>(&widget)) {
        for (int i = 0; i < pTabs->count(); ++i)
            arTexts.push_back({WithoutMnemonics(pTabs->tabText(i)),
                               pTabs->tabRect(i).intersected(pTabs->rect()).size(), pTabs->font()});
    } else if (const auto* pMenus = qobject_cast<const QMenuBar*>(&widget)) {
        for (QAction* const pAction : pMenus->actions())
            arTexts.push_back({WithoutMnemonics(pAction->text()),
                               pMenus->actionGeometry(pAction).intersected(pMenus->rect()).size(),
                               pMenus->font()});
    } else if (const auto* pHeader = qobject_cast<const QHeaderView*>(&widget)) {
        for (int i = 0; pHeader->orientation() == Qt::Horizontal && i < pHeader->count(); ++i)
            if (!pHeader->isSectionHidden(i))
                arTexts.push_back({pHeader->model()->headerData(i, Qt::Horizontal).toString(),
                                   QSize(pHeader->sectionSize(i), pHeader->height()), pHeader->font()});
    }
    return arTexts;
}

bool IsCut(const CShownText& text) {
    const QSize needed = QFontMetrics(text.m_font).size(0, text.m_strText);
    return needed.width() > text.m_room.width() || needed.height() > text.m_room.height();
}

/// The entries of a list or table that can be seen.
QStringList EntriesOf(const QAbstractItemView& view) {
    QStringList arEntries;
    for (int nRow = 0; view.model() && nRow < view.model()->rowCount(view.rootIndex()); ++nRow)
        for (int i = 0; i < view.model()->columnCount(view.rootIndex()); ++i) {
            const QModelIndex index = view.model()->index(nRow, i, view.rootIndex());
            if (view.visualRect(index).intersects(view.viewport()->rect()))
                arEntries << index.data().toString();
        }
    return arEntries;
}

QString NameOf(const QWidget& widget) {
    return QString::fromLatin1(widget.metaObject()->className()) + u' ' + widget.objectName();
}

QStringList TextFaults(const QWidget& widget) {
    QStringList arFaults;
    for (const CShownText& text : TextsOf(widget)) {
        if (!text.m_strText.isEmpty() && IsCut(text))
            arFaults << NameOf(widget) + u" cuts \""_qs + text.m_strText + u'"';
        if (LacksGlyph(text.m_strText, text.m_font))
            arFaults << NameOf(widget) + u" lacks a glyph of \""_qs + text.m_strText + u'"';
    }
    const auto* const pView = qobject_cast<const QAbstractItemView*>(&widget);
    if (!pView || qobject_cast<const QHeaderView*>(pView)) return arFaults;
    for (const QString& strEntry : EntriesOf(*pView))
        if (LacksGlyph(strEntry, pView->font()))
            arFaults << NameOf(widget) + u" lacks a glyph of \""_qs + strEntry + u'"';
    return arFaults;
}

/// Whether it lies in a part that is scrolled, where it may stand outside.
bool IsScrolled(const QWidget& widget) {
    for (const QWidget* p = widget.parentWidget(); p && !p->isWindow(); p = p->parentWidget())
        if (qobject_cast<const QAbstractScrollArea*>(p)) return true;
    return false;
}

} // namespace

bool LacksGlyph(const QString& strText, const QFont& font) {
    QTextLayout layout(QString(strText).remove(u'\n').remove(u'\r').remove(u'\t'), font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> arRuns = layout.glyphRuns();
    return std::any_of(arRuns.begin(), arRuns.end(),
                       [](const QGlyphRun& run) { return run.glyphIndexes().contains(0U); });
}

bool IsOfOneColor(const QImage& picture) {
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixel(x, y) != picture.pixel(0, 0)) return false;
    return true;
}

QStringList LookFaults(const QWidget& window) {
    QStringList arFaults;
    if (!window.screen()->geometry().contains(window.frameGeometry()))
        arFaults << u"the window leaves the screen"_qs;
    for (const QWidget* pWidget : window.findChildren<QWidget*>()) {
        if (!pWidget->isVisible() || pWidget->window() != &window) continue;
        arFaults << TextFaults(*pWidget);
        const QRect place(pWidget->mapTo(&window, QPoint()), pWidget->size());
        if (!window.rect().contains(place) && !IsScrolled(*pWidget))
            arFaults << NameOf(*pWidget) + u" leaves the window"_qs;
        if (pWidget->objectName() == u"qt_toolbar_ext_button"_qs)
            arFaults << NameOf(*pWidget->parentWidget()) + u" has no room for its buttons"_qs;
    }
    return arFaults;
}
