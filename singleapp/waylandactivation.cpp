#include "waylandactivation.h"

#include "xdg-activation-v1-client-protocol.h"

#include <QGuiApplication>
#include <QWindow>
#include <qpa/qplatformnativeinterface.h>

#include <cstring>
#include <wayland-client.h>

namespace {

void announceGlobal(void *data, wl_registry *registry, uint32_t name, const char *interface, uint32_t)
{
    auto **activation = static_cast<xdg_activation_v1 **>(data);
    if (!*activation && strcmp(interface, xdg_activation_v1_interface.name) == 0)
        *activation = static_cast<xdg_activation_v1 *>(wl_registry_bind(registry, name, &xdg_activation_v1_interface, 1));
}

void removeGlobal(void *, wl_registry *, uint32_t) {}

const wl_registry_listener kRegistryListener = {announceGlobal, removeGlobal};

} // namespace

bool WaylandActivation::activate(QWindow *window, const QByteArray &token)
{
    QPlatformNativeInterface *native = QGuiApplication::platformNativeInterface();
    if (!window || token.isEmpty() || !native || !QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        return false;
    auto *display = static_cast<wl_display *>(native->nativeResourceForIntegration("wl_display"));
    auto *surface = static_cast<wl_surface *>(native->nativeResourceForWindow("surface", window));
    if (!display || !surface)
        return false;

    // A queue of our own: Qt's events on the shared connection stay Qt's.
    wl_event_queue *queue = wl_display_create_queue(display);
    auto *wrapped = static_cast<wl_display *>(wl_proxy_create_wrapper(display));
    wl_proxy_set_queue(reinterpret_cast<wl_proxy *>(wrapped), queue);
    wl_registry *registry = wl_display_get_registry(wrapped);
    xdg_activation_v1 *activation = nullptr;
    wl_registry_add_listener(registry, &kRegistryListener, &activation);
    wl_display_roundtrip_queue(display, queue);

    const bool sent = activation != nullptr;
    if (activation) {
        xdg_activation_v1_activate(activation, token.constData(), surface);
        xdg_activation_v1_destroy(activation);
        wl_display_flush(display);
    }
    wl_registry_destroy(registry);
    wl_proxy_wrapper_destroy(wrapped);
    wl_event_queue_destroy(queue);
    return sent;
}
