#include "AboutImportViewController.h"

#include "AboutFileWriter.h"
#include "AboutImportUndo.h"
#include "Alerts.h"
#include "AppDelegate.h"
#include "FatalError.h"
#include "Log.h"
#include "PreferenceKeys.h"
#include "Navigator.h"
#include "StoreSnapshots.h"
#include "TableClearing.h"
#include "UpdateFileTarget.h"

#include <QFile>
#include <QStringDecoder>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {
// Both import alerts lead back to the about list, which then shows the new articles.
void presentImportAlert(const QString &message)
{
    Alerts::shared().present({u"Data Import"_s, message, {u"OK"_s}, [](int) {
                                  Log::line(u"Back button Clicked"_s);
                                  Navigator::shared().unwind(u"unwindToAboutSegue"_s);
                              }});
}

// A byte-order mark names the encoding; without one the text must be UTF-8.
std::optional<QString> decoded(const QByteArray &bytes)
{
    const auto encoding = QStringConverter::encodingForData(bytes).value_or(QStringConverter::Utf8);
    QStringDecoder decoder(encoding);
    QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}
}

AboutImportViewController::AboutImportViewController(QObject *parent)
    : QObject(parent)
{
}

void AboutImportViewController::setImportTextView(const QString &text)
{
    if (text == m_ImportTextView)
        return;
    m_ImportTextView = text;
    Q_EMIT ImportTextViewChanged();
}

void AboutImportViewController::viewDidLoad()
{
    if (UpdateFileTarget::filePickerAvailable(this))
        Q_EMIT documentPickerRequested();
}

void AboutImportViewController::documentPicker(const QUrl &didPickDocumentAt)
{
    QFile file(didPickDocumentAt.toLocalFile());
    if (!file.open(QIODevice::ReadOnly)) {
        Log::line(file.errorString());
        return;
    }
    const std::optional<QString> text = decoded(file.readAll());
    if (!text) {
        Log::line(u"The file “%1” is not text in a known encoding."_s.arg(file.fileName()));
        return;
    }
    m_document = text;
    m_ImportTextView = *text;
    Q_EMIT ImportTextViewChanged();
}

void AboutImportViewController::clearAboutTable()
{
    if (const auto snapshot = StoreSnapshots::take(StoreSnapshots::aboutImport))
        AboutImportUndo::shared().importStarted(*snapshot);
    const auto container = loadedContainer();
    TableClearing::deleteEachSaving<About>(container->viewContext());
    // The articles are the imported ones from now on: the about list's first visit must not
    // seed the book's own over them.
    Preferences::write(PreferenceKeys::AboutHasBeenLaunchedBeforeFlag, true);
}

void AboutImportViewController::ImportButtonClicked()
{
    // The table is emptied before the file is looked at: a wrong file leaves no articles.
    clearAboutTable();
    if (!m_document)
        fatalError(u"Fatal error: Unexpectedly found nil while unwrapping an Optional value"_s);
    QString text = *m_document;
    text.remove(u'\r');
    const QStringList allLines = text.split(u'\n');
    QStringList lines;
    for (const QString &line : allLines) {
        if (!line.isEmpty() && line != AboutFile::marker)
            lines.append(line);
    }
    // A file of empty lines passes: the check for lines comes before the check for the header.
    if (!lines.isEmpty() && !allLines.contains(AboutFile::marker)) {
        presentImportAlert(u"WRONG TEXT FILE - ABORTING"_s);
    } else {
        for (const QString &line : lines)
            importLine(line);
    }
    presentImportAlert(u"Data Import Completed"_s);
}

void AboutImportViewController::importLine(const QString &line)
{
    const QStringList fields = line.split(u'^');
    m_theName = fields.value(0);
    m_theAboutText.reset();
    if (fields.size() > 1)
        m_theAboutText = fields[1];

    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    FetchRequest request = About::fetchRequest();
    request.predicate = Predicate::equals(u"name"_s, *m_theName);
    std::optional<StoreError> error;
    const QList<About *> found = context.fetch<About>(request, &error);
    if (!error)
        m_resultCount = int(found.size());
    if (m_resultCount > 1)
        return;
    if (fields.size() > 2)
        fatalError(u"Fatal error: Index out of range: an about line has %1 fields: “%2”"_s.arg(fields.size()).arg(line.left(60)));

    if (m_resultCount == 0) {
        About *article = context.insertNewObject<About>();
        if (!m_theName->isEmpty())
            article->setName(*m_theName);
        if (m_theAboutText && !m_theAboutText->isEmpty())
            article->setAboutText(QString(*m_theAboutText).replace(u"@#@"_s, u"\n"_s));
    } else {
        // An article named twice: the later line's text, "@#@" kept as it stands.
        About *article = found.value(0);
        if (!article) // the count of an earlier line, after a failed fetch
            return;
        if (!m_theName->isEmpty())
            article->setName(*m_theName);
        if (m_theAboutText && !m_theAboutText->isEmpty())
            article->setAboutText(*m_theAboutText);
    }
    if (const auto saveError = context.save())
        Log::line(saveError->unresolvedMessage());
}

void AboutImportViewController::CreateExportFile()
{
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    FetchRequest request = About::fetchRequest();
    request.sortDescriptors = {SortDescriptor{u"name"_s, true}};
    m_AboutList = context.fetch<About>(request);
    setImportTextView(QString());
    const auto written = AboutFile::write(m_AboutList, [](const About &article) {
        Log::line(u"About name: %1 aboutText: %2"_s.arg(article.name().value_or(u"nil"_s),
                                                         article.aboutText().value_or(u"nil"_s)));
    });
    if (const auto *error = std::get_if<AboutFile::WriteError>(&written))
        fatalError(error->message);
    setImportTextView(std::get<QString>(written));
    m_ExportButtonEnabled = false;
    Q_EMIT ExportButtonEnabledChanged();
    QTimer::singleShot(1000, &Alerts::shared(), [] {
        Alerts::shared().present({u"Data Export"_s, u"Process Complete - File Ready to Email"_s, {u"OK"_s}, {}});
    });
}

void AboutImportViewController::EmailExportFile()
{
    const QString path = UpdateFileTarget::mailPath(u"About.txt"_s);
    UpdateFileTarget::write(path, m_ImportTextView);
    UpdateFileTarget::mail(path, u"About.txt"_s, u"Larkwell's About Update Text File"_s,
                           u"Attachment: Larkwell's About Text File"_s);
}
