// SPDX-License-Identifier: MIT
#include "Change.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <QVariant>
#include <memory>

#include "CommonUtilsBase.h"

namespace {

using Translator = std::unique_ptr<QTranslator>;

const QString English = "en";
const QString FilePrefix = "orbisdial_";
const QString FileSuffix = ".qm";

QString textsFolder() { return CommonUtilsBase::GetPluginLibraryPath() + "/lang"; }

// A translator that holds the file, or null when there is no such file or it is damaged.
Translator loadFile(const QString& file) {
    auto translator = std::make_unique<QTranslator>();
    return translator->load(file) ? std::move(translator) : nullptr;
}

Translator loadTexts(const QString& code) { return loadFile(textsFolder() + '/' + FilePrefix + code + FileSuffix); }

// The texts of Qt's own dialogs; Qt's English ones need no file.
Translator loadQtTexts(const QString& code) {
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    const QString folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath) + '/';
#else
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath) + '/';
#endif
    if (Translator modern = loadFile(folder + "qtbase_" + code + FileSuffix)) return modern;
    return loadFile(folder + "qt_" + code + FileSuffix);
}

QString textOf(const Translator& translator, const QString& id, const QString& context) {
    return translator ? translator->translate(context.toUtf8(), id.toUtf8()) : QString();
}

// What is loaded: the current language, and English to fall back to.
class Texts {
public:
    QString code() const { return m_Code; }

    QString find(const QString& id, const QString& context) {
        reloadIfMoved();
        const QString text = textOf(m_Current, id, context);
        return text.isEmpty() ? textOf(m_English, id, context) : text;
    }

    // False, and nothing changes, when the language's texts can't be loaded.
    bool select(const QString& code) {
        reloadIfMoved();
        Translator texts = code == English ? nullptr : loadTexts(code);
        if (code != English && !texts) return false;
        m_Code = code;
        use(std::move(texts));
        return true;
    }

private:
    // The application asks it too, for what libraries say that know Qt Core alone.
    void use(Translator texts) {
        m_Current = std::move(texts);
        if (m_Current && QCoreApplication::instance()) QCoreApplication::installTranslator(m_Current.get());
    }

    // The library path is the environment's, which may change while the process runs.
    void reloadIfMoved() {
        const QString folder = textsFolder();
        if (folder == m_Folder) return;
        m_Folder = folder;
        m_English = loadTexts(English);
        use(m_Code == English ? nullptr : loadTexts(m_Code));
    }

    QString m_Folder;
    QString m_Code = English;
    Translator m_English;
    Translator m_Current;
};

Texts& texts() {
    static Texts instance;
    return instance;
}

// "de_DE.UTF-8" and "de-DE" are "de_DE" in the names of our files.
QString normalized(const QString& code) { return code.section('.', 0, 0).section('@', 0, 0).replace('-', '_'); }

QString languagePart(const QString& code) { return code.section('_', 0, 0); }

// The shipped language that serves a code best; null when none does.
QString shippedCode(const QString& code) {
    const QStringList shipped = Change::GetLanguages();
    const QString wanted = normalized(code);
    const QString language = languagePart(wanted);
    if (shipped.contains(wanted)) return wanted;
    if (shipped.contains(language)) return language;
    for (const QString& candidate : shipped)
        if (languagePart(candidate) == language) return candidate;
    return QString();
}

// The translator that is put in place must be alive as long as the application asks it.
void installQtTexts(const QString& code) {
    static Translator installed;
    Translator fresh = loadQtTexts(code);
    if (installed) QCoreApplication::removeTranslator(installed.get());
    installed = std::move(fresh);
    if (installed) QCoreApplication::installTranslator(installed.get());
}

void applyToApplication(const QString& code) {
    if (!QCoreApplication::instance()) return;
    installQtTexts(code);
    // An application with windows has this property; one without needs no direction, and no library for it.
    QCoreApplication* const application = QCoreApplication::instance();
    if (application->inherits("QGuiApplication"))
        application->setProperty("layoutDirection", int(QLocale(code).textDirection()));
}

}  // namespace

QString Change::tr(const QString& id, const QString& context) { return texts().find(id, context); }

QString Change::GetLangName() { return texts().code(); }

// Qt would make a regular expression of a pattern, which costs a start half a megabyte and its time.
QStringList Change::GetLanguages() {
    QStringList codes(English);
    const QStringList files = QDir(textsFolder()).entryList(QDir::Files, QDir::Name);
    for (const QString& file : files) {
        if (!file.startsWith(FilePrefix) || !file.endsWith(FileSuffix)) continue;
        const QString code = file.mid(FilePrefix.size()).chopped(FileSuffix.size());
        if (code != English) codes.append(code);
    }
    return codes;
}

bool Change::SetLanguage(const QString& code) {
    const QString shipped = shippedCode(code);
    if (shipped.isEmpty() || !texts().select(shipped)) return false;
    applyToApplication(shipped);
    return true;
}
