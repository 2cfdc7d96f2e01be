#pragma once

#include "modulefixture.h"
#include "recordinghost.h"
#include "recordinginvoker.h"
#include "rows.h"
#include "trees.h"
#include "useracts.h"

#include <memory>

/// A dialog of the module on the screen, with its tree, a recording host and a recording command.
class DialogFixture : public QObject
{
    Q_OBJECT

protected slots:
    void init() { m_host = std::make_unique<RecordingHost>(); }
    void cleanup()
    {
        m_dialog = {};
        m_host.reset();
    }

protected:
    /// Opens a dialog. `keys` are the request keys that the log shows.
    void open(const char* name, const QString& json, const QStringList& keys = {"none"},
        const char* markerKey = "marker")
    {
        make(name, json, keys, markerKey);
        m_dialog.window()->show();
    }
    /// Makes a dialog that is not on the screen yet.
    void make(const char* name, const QString& json, const QStringList& keys,
        const char* markerKey = "marker")
    {
        m_tree = json.isEmpty() ? vnsi::VnJsonPtr() : tree(json);
        m_invoker = RecordingInvoker::create(*m_host, keys);
        m_invoker->setMarkerKey(markerKey);
        m_dialog = {}; // An open dialog would become the parent of the new one.
        m_dialog = m_module.createDialog(name, m_tree, OdRxObjectPtr(m_invoker.get()));
    }

    template <class T>
    T& find(const char* name) const
    {
        return child<T>(m_dialog, name);
    }
    void press(const char* button) const { ::press(*m_dialog.window(), button); }
    bool isEnabled(const char* widget) const { return find<QWidget>(widget).isEnabled(); }
    bool isOpen() const { return m_dialog.window()->isVisible(); }
    QString title() const { return m_dialog.window()->windowTitle(); }
    QStringList log() const { return m_host->log(); }

    ModuleFixture m_module;
    std::unique_ptr<RecordingHost> m_host;
    RecordingInvoker::Ptr m_invoker;
    vnsi::VnJsonPtr m_tree;
    host::WatchedDialog m_dialog;
};
