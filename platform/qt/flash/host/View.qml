import QtQuick
import QtWebEngine

WebEngineView {
    signal told(string line)
    signal ended()

    backgroundColor: "transparent"
    settings.playbackRequiresUserGesture: false
    settings.showScrollBars: false
    settings.localContentCanAccessFileUrls: false
    settings.localContentCanAccessRemoteUrls: false
    settings.errorPageEnabled: false
    settings.javascriptCanOpenWindows: false
    onJavaScriptConsoleMessage: (level, message) => told(message)
    onRenderProcessTerminated: ended()
    onNewWindowRequested: {}
    onContextMenuRequested: request => request.accepted = true
}
