// GIO's headers use `signals` as a name, which Qt would otherwise define as a keyword.
#define QT_NO_KEYWORDS

#include "platform/DetachedProcessLauncher.h"

#include "platform/OpenWithDefaultProgram.h"

#include <QProcess>
#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>
#include <memory>

namespace {

template <typename T> struct GObjectDeleter {
    void operator()(T* object) const { g_object_unref(object); }
};
template <typename T> using GObjectPtr = std::unique_ptr<T, GObjectDeleter<T>>;

struct GErrorDeleter {
    void operator()(GError* error) const { g_error_free(error); }
};

// The desktop entry's id names the handler across the two calls; a handler without one
// (not from a desktop entry) can't be named and so counts as none.
QString HandlerId(GAppInfo* app)
{
    const char* id = app ? g_app_info_get_id(app) : nullptr;
    return id ? QString::fromUtf8(id) : QString();
}

} // namespace

bool DetachedProcessLauncher::StartDetached(const QString& commandLine, int /*windowStyle*/)
{
    // A detached process owns its window; the window style can't be handed on.
    QStringList words = QProcess::splitCommand(commandLine);
    if (words.isEmpty())
        return false;
    const QString program = words.takeFirst();
    return QProcess::startDetached(program, words);
}

QString DetachedProcessLauncher::FindExecutable(const QString& file)
{
    const QByteArray path = file.toLocal8Bit();
    GObjectPtr<GFile> gfile(g_file_new_for_path(path.constData()));
    GError* error = nullptr;
    GObjectPtr<GAppInfo> app(g_file_query_default_handler(gfile.get(), nullptr, &error));
    std::unique_ptr<GError, GErrorDeleter> owned(error);
    QString id = HandlerId(app.get());
    // Without a MIME database the file's type may be unknown: the page's type decides then.
    if (id.isEmpty()) {
        GObjectPtr<GAppInfo> html(g_app_info_get_default_for_type("text/html", FALSE));
        id = HandlerId(html.get());
    }
    return id;
}

bool DetachedProcessLauncher::ShellExecute(const QString& program, const QString& url,
                                           int /*windowStyle*/)
{
    const QByteArray id = program.toUtf8();
    GObjectPtr<GDesktopAppInfo> app(g_desktop_app_info_new(id.constData()));
    if (!app)
        return false;
    const QByteArray uri = url.toUtf8();
    GList uris{const_cast<char*>(uri.constData()), nullptr, nullptr};
    GError* error = nullptr;
    const gboolean started = g_app_info_launch_uris(G_APP_INFO(app.get()), &uris, nullptr, &error);
    std::unique_ptr<GError, GErrorDeleter> owned(error);
    return started;
}

int DetachedProcessLauncher::OpenWithDefaultProgram(const QString& file)
{
    return ::OpenWithDefaultProgram(file);
}
