#include "WholeProgram.h"

#include <functional>
#include <map>

using namespace Qt::StringLiterals;

ScheduledCall CyrillicFolders::list(const std::filesystem::path &folder, Completion completion)
{
    if (folder.filename() == "Пусто")
        completion(QList<Entry>{});
    else
        completion(QList<Entry>{{folder / "Пусто", true}, {folder / "кот", false}});
    return {};
}

WholeProgram::WholeProgram()
{
    m_exports.bindTo(*m_main.commands()->list());
    m_launch.cancel();
}

void WholeProgram::addPage(const QList<Block> &blocks, Space space)
{
    m_clock.time += 1;
    m_appState.createDocument(space);
    PelkoDocument page = m_appState.documents().last();
    page.blocks = blocks;
    m_appState.updateDocument(page);
}

/// Adds a page with a block of every kind, with and without text.
void WholeProgram::addFullPage()
{
    QList<Block> blocks{Block(BlockType::textLarge, u"Страница"_s)};
    for (const BlockType type : {BlockType::textLarge, BlockType::textSmall, BlockType::quote,
                                 BlockType::code, BlockType::divider, BlockType::image, BlockType::sticky})
        blocks << Block(type);
    blocks.last().todos =
        QList<TodoItem>{{.text = u"Дело"_s, .done = false}, {.text = u"Другое"_s, .done = true}};
    blocks << Block(BlockType::sticky);
    addPage(blocks);
}

void WholeProgram::beginExport(bool library)
{
    m_main.commands()->run(library ? u"exportLibrary"_s : u"exportDocument"_s);
    m_chooser.takeFolder();
}

void WholeProgram::failToSave()
{
    m_file.writeError = u"Диск полон"_s;
    m_appState.save();
}

QStringList WholeProgram::scenes()
{
    return {u"page"_s,          u"empty"_s,        u"tasks"_s,           u"tasks without any"_s,
            u"navigation"_s,    u"empty space"_s,  u"search"_s,          u"search without hits"_s,
            u"menu"_s,          u"shortcuts"_s,    u"about"_s,           u"limit"_s,
            u"delete"_s,        u"save failed"_s,  u"unsaved"_s,         u"quit"_s,
            u"image failed"_s,  u"choose image"_s, u"choose folder"_s,   u"choose in empty"_s,
            u"exporting"_s,     u"replace one"_s,  u"replace several"_s, u"exported"_s,
            u"export failed"_s, u"focus running"_s};
}

void WholeProgram::enter(const QString &scene)
{
    const auto commands = [this](const QString &id) { return [this, id] { m_main.commands()->run(id); }; };
    const std::map<QString, std::function<void()>> ways{
        {u"page"_s, [] {}},
        {u"empty"_s, [this] { m_appState.setOpenDocumentID(std::nullopt); }},
        {u"tasks"_s,
         [this] {
             m_appState.setShowTasksPanel(true);
             m_calendars.answer(
                 QList<CalendarEvent>{{.title = u"Чай"_s, .start = m_clock.time + 60, .identifier = u"1"_s},
                                      {.start = m_clock.time + 120, .identifier = u"2"_s}});
         }},
        {u"tasks without any"_s,
         [this] {
             m_appState.permanentlyDeleteDocument(*m_appState.openDocument());
             m_appState.setShowTasksPanel(true);
         }},
        {u"navigation"_s,
         [this] {
             m_clock.time += 60 * 60;
             m_appState.setShowNav(true);
         }},
        {u"empty space"_s,
         [this] {
             m_appState.switchSpace(Space::journal);
             m_appState.setShowNav(true);
         }},
        {u"search"_s,
         [this] {
             m_appState.captureSpark(u"Страница другая"_s);
             m_appState.setShowNav(true);
             m_main.navigation()->search(u"страница"_s);
         }},
        {u"search without hits"_s,
         [this] {
             m_appState.setShowNav(true);
             m_main.navigation()->search(u"ничего"_s);
         }},
        {u"menu"_s, commands(u"appMenu"_s)},
        {u"shortcuts"_s, commands(u"shortcuts"_s)},
        {u"about"_s, commands(u"about"_s)},
        {u"limit"_s,
         [this] {
             for (int page = 0; page < 6; ++page)
                 m_main.createDocument();
         }},
        {u"delete"_s, [this] { m_main.requestDelete(m_main.openDocumentID()); }},
        {u"save failed"_s, [this] { failToSave(); }},
        {u"unsaved"_s,
         [this] {
             failToSave();
             m_main.dismissError();
         }},
        {u"quit"_s,
         [this] {
             failToSave();
             m_main.quitGuard()->mayQuit();
         }},
        {u"image failed"_s,
         [this] {
             m_main.editor()->imageImport()->addImage({});
             m_desktop.fileChooser.answer(FileError(FileError::Problem::chooserEnded));
         }},
        {u"choose image"_s,
         [this] { m_choosing = m_chooser.choose(FileChooser::Target::picture, [](const auto &) {}); }},
        {u"choose folder"_s,
         [this] { m_choosing = m_chooser.choose(FileChooser::Target::folder, [](const auto &) {}); }},
        {u"choose in empty"_s,
         [this] {
             m_choosing = m_chooser.choose(FileChooser::Target::picture, [](const auto &) {});
             m_chooser.goTo(u"/Дом/Пусто"_s);
         }},
        {u"exporting"_s,
         [this] {
             beginExport(true);
             advance(1000);
         }},
        {u"replace one"_s,
         [this] {
             beginExport(false);
             m_exportFolder.answer(ExportFolder::Conflicts{{u"Страница"_s}});
         }},
        {u"replace several"_s,
         [this] {
             beginExport(true);
             m_exportFolder.answer(ExportFolder::Conflicts{{u"Страница"_s, u"Другая"_s}});
         }},
        {u"exported"_s,
         [this] {
             beginExport(true);
             m_exportFolder.answer(ExportFolder::Success{});
         }},
        {u"export failed"_s,
         [this] {
             beginExport(true);
             m_exportFolder.answer(FileError(u"Диск полон"_s));
         }},
        {u"focus running"_s,
         [this] {
             m_pomodoro.start();
             m_flow.start();
             advance(2000);
         }},
    };
    addFullPage();
    ways.at(scene)();
}
