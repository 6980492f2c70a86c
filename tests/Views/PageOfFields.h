#pragma once

#include "Views/Editor/BlockPlace.h"
#include "Views/Editor/FieldCaret.h"
#include "Views/Editor/PageFields.h"
#include "support/PageText.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>

#include <map>
#include <memory>

/// The fields and blocks of an editor's page in a window: one below the other, of equal height and without
/// rows around them. The fields keep their first texts, and events sent to them change nothing else.
class PageOfFields
{
public:
    static constexpr int height = 40;

    explicit PageOfFields(EditorViewModel &editor) : m_listener(fields), m_textEdit(&m_engine)
    {
        m_textEdit.setData("import QtQuick\nTextEdit { persistentSelection: true }", QUrl());
        m_window.resize(400, 300);
        auto *view = new QQuickItem(m_window.contentItem());
        view->setSize(m_window.size());
        fields.setEditor(&editor);
        fields.setView(view);
        const Passages &passages = editor.selection()->passages();
        for (qsizetype index = 0; index < passages.size(); ++index)
            passages.at(index).text ? addField(passages.at(index)) : addBlock(passages.at(index));
        m_window.show();
    }

    [[nodiscard]] bool isShown() { return QTest::qWaitForWindowActive(&m_window); }

    FieldCaret &field(char block, std::optional<char> part = std::nullopt) const
    {
        return *m_fields.at(key(PageText::address(block, part)));
    }
    BlockPlace &block(char letter) const { return *m_blocks.at(key(PageText::address(letter))); }
    /// Returns the text that the field shows.
    QString shown(char block) const { return field(block).field().property("text").toString(); }
    QQuickItem *focused() const { return m_window.activeFocusItem(); }

    PageFields fields;

private:
    /// Ignores the events of the fields.
    class Listener : public PageListener
    {
    public:
        explicit Listener(PageFields &page) : m_page(page) {}

        void add(FieldCaret &field) override { m_page.add(field); }
        void add(BlockPlace &block) override { m_page.add(block); }
        void entered(FieldCaret &field) override { m_page.entered(field); }
        bool handle(FieldCaret &, QEvent &) override { return false; }
        void offer(const FieldCaret &) override {}

    private:
        PageFields &m_page;
    };

    static QString key(const TextAddress &address) { return address.blockName() + address.partName(); }

    void place(QQuickItem &item)
    {
        item.setParentItem(fields.view());
        item.setSize(QSizeF(400, height));
        item.setY(m_top);
        m_top += height;
    }

    void addField(const Passage &passage)
    {
        auto *item = qobject_cast<QQuickItem *>(m_textEdit.create());
        item->setParent(fields.view());
        item->setProperty("text", *passage.text);
        place(*item);
        auto *field = new FieldCaret(item);
        field->setProperty("page", QVariant::fromValue<PageListener *>(&m_listener));
        field->setProperty("address", QVariant::fromValue(passage.id));
        field->componentComplete();
        m_fields[key(passage.id)] = field;
    }

    void addBlock(const Passage &passage)
    {
        auto *item = new QQuickItem(fields.view());
        place(*item);
        auto *block = new BlockPlace(item);
        block->setProperty("page", QVariant::fromValue<PageListener *>(&m_listener));
        block->setProperty("blockID", passage.id.blockName());
        block->setProperty("row", QVariant::fromValue(item));
        block->setProperty("item", QVariant::fromValue(item));
        block->componentComplete();
        m_blocks[key(passage.id)] = block;
    }

    Listener m_listener;
    QQmlEngine m_engine;
    QQmlComponent m_textEdit;
    QQuickWindow m_window;
    std::map<QString, FieldCaret *> m_fields; // children of their items
    std::map<QString, BlockPlace *> m_blocks; // children of their items
    qreal m_top = 0;
};
