import QtQuick
import QtWebEngine

// Whatever would ask the operator something is answered with no.
WebEngineView {
    required property QtObject gate

    function ask() { runJavaScript("0", () => gate.Answered()) }

    backgroundColor: "white"
    settings.playbackRequiresUserGesture: false
    settings.localContentCanAccessFileUrls: true
    settings.localContentCanAccessRemoteUrls: false
    settings.fullScreenSupportEnabled: false
    settings.screenCaptureEnabled: false
    settings.pluginsEnabled: false
    settings.javascriptCanAccessClipboard: false
    settings.javascriptCanPaste: false

    onNavigationRequested: request => { if (!gate.MayGo(request.url)) request.reject() }
    onNewWindowRequested: request => { if (gate.MayOpen(request.requestedUrl)) url = request.requestedUrl }
    onLoadingChanged: info => {
        if (info.status === WebEngineView.LoadStartedStatus) gate.Started()
        else if (info.status === WebEngineView.LoadStoppedStatus) gate.Stopped()
        else gate.Ended(info.status === WebEngineView.LoadSucceededStatus)
    }
    onLoadProgressChanged: gate.Progress(loadProgress)
    onLinkHovered: address => gate.Hovered(address)
    onRenderProcessTerminated: gate.Died()

    onJavaScriptDialogRequested: request => { request.accepted = true; request.dialogReject() }
    onAuthenticationDialogRequested: request => { request.accepted = true; request.dialogReject() }
    onColorDialogRequested: request => { request.accepted = true; request.dialogReject() }
    onFileDialogRequested: request => { request.accepted = true; request.dialogReject() }
    onContextMenuRequested: request => request.accepted = true
    onTooltipRequested: request => request.accepted = true
    onTouchSelectionMenuRequested: request => request.accepted = true
    onCertificateError: error => error.rejectCertificate()
    onFeaturePermissionRequested: (origin, feature) => grantFeaturePermission(origin, feature, false)
    onFullScreenRequested: request => request.reject()
    onQuotaRequested: request => request.reject()
    onRegisterProtocolHandlerRequested: request => request.reject()
    onFileSystemAccessRequested: request => request.reject()
    onSelectClientCertificate: selection => selection.selectNone()
    onJavaScriptConsoleMessage: {}
    onPrintRequested: {}
}
