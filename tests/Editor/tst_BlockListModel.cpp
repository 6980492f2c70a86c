#include "Editor/BlockListModel.h"
#include "Editor/PictureBytes.h"
#include "support/ModelLog.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QPointer>
#include <QRandomGenerator>
#include <QRegularExpression>

using namespace PageText;
using namespace Qt::StringLiterals;

namespace
{

QList<Block> bodies(const QString &letters)
{
    QList<Block> blocks;
    for (const QChar letter : letters)
        blocks << block(letter.toLatin1(), body, letter.toLower());
    return blocks;
}

} // namespace

class TestBlockListModel : public QObject
{
    Q_OBJECT

    std::unique_ptr<BlockListModel> model;
    std::unique_ptr<QAbstractItemModelTester> tester;
    std::unique_ptr<ModelLog> log;

    /// Publishes a page and clears the log.
    void show(const QList<Block> &blocks)
    {
        model->publish(page(blocks));
        log->take();
    }

    /// Publishes a page and returns what was announced.
    QStringList announcedBy(const QList<Block> &blocks)
    {
        model->publish(page(blocks));
        return log->take();
    }

    QVariant value(int row, BlockListModel::Role role) const { return model->index(row).data(role); }

    TodoListModel *todos(int row) const
    {
        return qobject_cast<TodoListModel *>(value(row, BlockListModel::TodosRole).value<QObject *>());
    }

    void verifyShows(const QList<Block> &blocks)
    {
        QCOMPARE(model->rowCount(), blocks.size());
        for (int row = 0; row < blocks.size(); ++row) {
            const Block &block = blocks[row];
            QCOMPARE(value(row, BlockListModel::AddressRole).value<TextAddress>().blockID, block.id);
            QCOMPARE(value(row, BlockListModel::KindRole), rawValue(block.type));
            QCOMPARE(value(row, BlockListModel::KindAboveRole),
                     row == 0 ? QString() : rawValue(blocks[row - 1].type));
            QCOMPARE(value(row, BlockListModel::ContentRole), block.content);
            QCOMPARE(todos(row) != nullptr, block.type == BlockType::sticky);
        }
    }

private Q_SLOTS:
    void init()
    {
        model = std::make_unique<BlockListModel>();
        tester = std::make_unique<QAbstractItemModelTester>(
            model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        log = std::make_unique<ModelLog>(*model);
    }

    void cleanup()
    {
        log.reset();
        tester.reset();
        model.reset();
    }

    // Roles

    void everyFieldHasARole()
    {
        Block banner = image('A', true);
        banner.bannerTitle = u"Summer"_s;
        banner.content = u"unused"_s;
        show({banner, block('B', BlockType::quote, u"said"_s)});

        QCOMPARE(value(0, BlockListModel::AddressRole).value<TextAddress>(), address('A'));
        QCOMPARE(value(0, BlockListModel::KindRole), u"image"_s);
        QCOMPARE(value(0, BlockListModel::KindAboveRole), QString());
        QCOMPARE(value(0, BlockListModel::ContentRole), u"unused"_s);
        QCOMPARE(value(0, BlockListModel::ImageDataRole).value<PictureBytes>().bytes, "picture"_ba);
        QCOMPARE(value(0, BlockListModel::HasImageRole), true);
        QCOMPARE(value(0, BlockListModel::IsFullWidthRole), true);
        QCOMPARE(value(0, BlockListModel::IsBannerRole), true);
        QCOMPARE(value(0, BlockListModel::BannerTitleRole), u"Summer"_s);
        QCOMPARE(value(0, BlockListModel::CanDeleteRole), true);
        QCOMPARE(value(1, BlockListModel::KindAboveRole), u"banner"_s);
        QCOMPARE(value(1, BlockListModel::IsBannerRole), false);
    }

    void aFullWidthPictureFurtherDownIsNoBanner()
    {
        show({block('A', heading), image('B', true), block('C')});
        QCOMPARE(value(1, BlockListModel::IsFullWidthRole), true);
        QCOMPARE(value(1, BlockListModel::IsBannerRole), false);
        QCOMPARE(value(2, BlockListModel::KindAboveRole), u"image"_s);
    }

    void onlyImageBlocksHaveAPicture()
    {
        Block odd = block('A', BlockType::quote);
        odd.imageData = "picture"_ba;
        show({odd});
        QCOMPARE(value(0, BlockListModel::HasImageRole), false);
    }

    void absentFieldsReadAsFalseOrEmpty()
    {
        show({block('A', heading)});
        QCOMPARE(value(0, BlockListModel::ImageDataRole).value<PictureBytes>().bytes, QByteArray());
        QCOMPARE(value(0, BlockListModel::HasImageRole), false);
        QCOMPARE(value(0, BlockListModel::IsFullWidthRole), false);
        QCOMPARE(value(0, BlockListModel::BannerTitleRole), QString());
        QCOMPARE(value(0, BlockListModel::CanDeleteRole), false);
        QVERIFY(!todos(0));
    }

    void whatIsNotThereReadsAsNothing()
    {
        show({block('A')});
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"not valid"_s));
        QVERIFY(!model->data({}, BlockListModel::ContentRole).isValid());
        QVERIFY(!model->index(0).data(Qt::DisplayRole).isValid());
        QCOMPARE(model->rowCount(model->index(0)), 0);
    }

    // What is announced

    void theSamePageAnnouncesNothing()
    {
        show(bodies(u"ABC"_s));
        QCOMPARE(announcedBy(bodies(u"ABC"_s)), {});
    }

    void oneKeyChangesTheContentOfOneRow()
    {
        QList<Block> blocks = bodies(u"ABC"_s);
        show(blocks);
        blocks[1].content += u'x';
        QCOMPARE(announcedBy(blocks), {u"1: content"_s});
    }

    void onlyTheRolesOfTheFieldThatChangedAreAnnounced_data()
    {
        QTest::addColumn<Block>("after");
        QTest::addColumn<QString>("roles");
        Block changed = image('B');
        changed.imageData = "drawing"_ba; // of the same length
        QTest::newRow("picture") << changed << u"1: hasImage imageData"_s;
        QTest::newRow("full width") << image('B', true) << u"1: isFullWidth"_s;
        QTest::newRow("not full width") << image('B', false) << u"1: isFullWidth"_s;
        changed = image('B');
        changed.bannerTitle = u"Summer"_s;
        QTest::newRow("title") << changed << u"1: bannerTitle"_s;
        changed = image('B');
        changed.content = u"text"_s;
        QTest::newRow("content") << changed << u"1: content"_s;
    }

    void onlyTheRolesOfTheFieldThatChangedAreAnnounced()
    {
        QFETCH(const Block, after);
        QFETCH(const QString, roles);
        show({block('A'), image('B'), block('C')});
        QCOMPARE(announcedBy({block('A'), after, block('C')}), {roles});
    }

    void textThatBecomesAnotherKindOfTextKeepsItsRow()
    {
        show({block('A', heading), block('B'), block('C')});
        QCOMPARE(announcedBy({block('A', heading), block('B', BlockType::quote), block('C')}),
                 (QStringList{u"1: kind"_s, u"2: kindAbove"_s}));
    }

    void aKindWithAnotherEditorIsAnotherRow_data()
    {
        QTest::addColumn<Block>("becomes");
        QTest::addColumn<QString>("editor");
        QTest::newRow("divider") << block('B', BlockType::divider) << u"divider"_s;
        QTest::newRow("image") << block('B', BlockType::image) << u"image"_s;
        QTest::newRow("sticky") << sticky('B', {todo('x')}) << u"sticky"_s;
    }

    void aKindWithAnotherEditorIsAnotherRow()
    {
        QFETCH(const Block, becomes);
        QFETCH(const QString, editor);
        show({block('A'), block('B'), block('C')});
        QCOMPARE(value(1, BlockListModel::DelegateRole), u"text"_s);
        QCOMPARE(announcedBy({block('A'), becomes, block('C')}),
                 (QStringList{u"-1..1"_s, u"+1..1"_s, u"2: kindAbove"_s}));
        QCOMPARE(value(1, BlockListModel::DelegateRole), editor);
    }

    void allKindsOfTextShareAnEditor()
    {
        show({block('A', heading), block('B'), block('C', BlockType::quote), block('D', BlockType::code)});
        for (int row = 0; row < 4; ++row)
            QCOMPARE(value(row, BlockListModel::DelegateRole), u"text"_s);
    }

    void anInsertionAboveIsOneRow()
    {
        show(bodies(u"ABC"_s));
        QCOMPARE(announcedBy(bodies(u"AXBC"_s)), {u"+1..1"_s});
    }

    void neighboursComeAndGoTogether()
    {
        show(bodies(u"ABE"_s));
        QCOMPARE(announcedBy(bodies(u"ABCDE"_s)), {u"+2..3"_s});
        QCOMPARE(announcedBy(bodies(u"ABE"_s)), {u"-2..3"_s});
    }

    void aDropIsAMove()
    {
        show(bodies(u"HABCD"_s));
        QCOMPARE(announcedBy(bodies(u"HBCAD"_s)), {u"1>3"_s});
        QCOMPARE(announcedBy(bodies(u"HBDCA"_s)), {u"4>2"_s});
    }

    void aMoveTellsTheRowsWhatIsNowAboveThem()
    {
        show({block('A', heading), block('B'), block('C', BlockType::code)});
        QCOMPARE(announcedBy({block('B'), block('A', heading), block('C', BlockType::code)}),
                 (QStringList{u"0>1"_s, u"0: kindAbove"_s, u"1: canDelete kindAbove"_s, u"2: kindAbove"_s}));
    }

    void theLastBlockLeftCannotBeDeleted()
    {
        show(bodies(u"AB"_s));
        QCOMPARE(announcedBy(bodies(u"A"_s)), (QStringList{u"-1..1"_s, u"0: canDelete"_s}));
        QCOMPARE(value(0, BlockListModel::CanDeleteRole), false);
    }

    void aBannerTakesThePlaceOfABlankHeading()
    {
        show({block('A', heading), block('B'), block('C'), image('D')});
        QCOMPARE(
            announcedBy({image('D', true), block('B'), block('C')}),
            (QStringList{u"-0..0"_s, u"2>0"_s, u"0: isBanner isFullWidth kindAbove"_s, u"1: kindAbove"_s}));
    }

    void repeatedIdsShowTheListAnew()
    {
        show(bodies(u"AB"_s));
        QCOMPARE(announcedBy(bodies(u"ABA"_s)), (QStringList{u"-0..1"_s, u"+0..2"_s}));
        verifyShows(bodies(u"ABA"_s));
        QCOMPARE(announcedBy(bodies(u"AB"_s)), (QStringList{u"-0..2"_s, u"+0..1"_s}));
        verifyShows(bodies(u"AB"_s));
    }

    void aKeyAmongRepeatedIdsChangesOneRow()
    {
        QList<Block> blocks = bodies(u"ABA"_s);
        show(blocks);
        blocks[2].content = u"typed"_s;
        QCOMPARE(announcedBy(blocks), {u"2: content"_s});
    }

    void anyPageCanFollowAnyOther()
    {
        QRandomGenerator random(42);
        for (int round = 0; round < 300; ++round) {
            QList<Block> blocks;
            for (char letter = 'A'; letter < 'M'; ++letter)
                if (random.bounded(3) > 0)
                    blocks << block(letter, BlockType(random.bounded(7)), QString::number(random.bounded(3)));
            std::ranges::shuffle(blocks, random);
            model->publish(page(blocks));
            verifyShows(blocks);
        }
    }

    // Checklists

    void theEntriesOfAChecklistAreAModelOfTheirOwn()
    {
        show({sticky('A', {todo('x', u"milk"_s), todo('y', u"bread"_s, true)})});
        TodoListModel *list = todos(0);
        const QAbstractItemModelTester listTester(list,
                                                  QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(list->rowCount(), 2);
        QCOMPARE(list->index(0).data(TodoListModel::AddressRole).value<TextAddress>(), address('A', 'x'));
        QCOMPARE(list->index(0).data(TodoListModel::TextRole), u"milk"_s);
        QCOMPARE(list->index(0).data(TodoListModel::DoneRole), false);
        QCOMPARE(list->index(1).data(TodoListModel::DoneRole), true);
        QVERIFY(!list->index(0).data(Qt::DisplayRole).isValid());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"not valid"_s));
        QVERIFY(!list->data({}, TodoListModel::TextRole).isValid());
    }

    void aChecklistWithoutAListIsEmpty()
    {
        show({block('A', BlockType::sticky)});
        QCOMPARE(todos(0)->rowCount(), 0);
    }

    void theModelOfAChecklistStaysOverEditsAndMoves()
    {
        const auto list = [](const QList<TodoItem> &items) { return sticky('B', items); };
        show({block('A'), list({todo('x'), todo('y')}), block('C')});
        const QPointer<TodoListModel> before = todos(1);
        ModelLog entries(*before);

        QCOMPARE(announcedBy({block('A'), list({todo('x', u"a"_s), todo('y')}), block('C')}), {});
        QCOMPARE(entries.take(), {u"0: text"_s});
        QCOMPARE(announcedBy({block('A'), list({todo('x', u"a"_s), todo('y', {}, true)}), block('C')}), {});
        QCOMPARE(entries.take(), {u"1: done"_s});
        QCOMPARE(announcedBy({block('A'), list({todo('y', {}, true), todo('z')}), block('C')}), {});
        QCOMPARE(entries.take(), (QStringList{u"-0..0"_s, u"+1..1"_s}));
        announcedBy({list({todo('z'), todo('y', {}, true), todo('w')}), block('A'), block('C')});
        QCOMPARE(entries.take(), (QStringList{u"0>1"_s, u"+2..2"_s}));
        QCOMPARE(todos(0), before.data());
    }

    void theModelOfAChecklistGoesWithItsBlock()
    {
        show({block('A'), sticky('B', {todo('x')})});
        const QPointer<TodoListModel> list = todos(1);
        show({block('A')});
        QVERIFY(list); // a delegate may still be fading out
        QCoreApplication::sendPostedEvents(list, QEvent::DeferredDelete);
        QVERIFY(!list);
    }

    void aBlockThatBecomesAChecklistGetsAModel()
    {
        show({block('A'), block('B')});
        show({block('A'), sticky('B', {todo('x')})});
        QCOMPARE(todos(1)->rowCount(), 1);
    }

    void repeatedEntriesShowTheChecklistAnew()
    {
        show({sticky('A', {todo('x')})});
        ModelLog entries(*todos(0));
        show({sticky('A', {todo('x'), todo('x')})});
        QCOMPARE(entries.take(), (QStringList{u"-0..0"_s, u"+0..1"_s}));
        QCOMPARE(todos(0)->rowCount(), 2);
    }

    void repeatedChecklistsDoNotPileUp()
    {
        show({sticky('A', {todo('x')}), sticky('A', {todo('y')})});
        const TodoListModel *list = todos(0);
        for (int round = 0; round < 10; ++round)
            show({sticky('A', {todo('x')}), sticky('A', {todo('y')})});
        QCOMPARE(todos(0), list);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(model->findChildren<TodoListModel *>().size(), 1);
    }
};

PELKO_TEST(TestBlockListModel)
#include "tst_BlockListModel.moc"
