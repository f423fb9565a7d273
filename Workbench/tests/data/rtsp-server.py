"""Serves a test picture as the camera rtsp://127.0.0.1:PORT/door, and says "ready" once clients can
connect. The only argument is the port."""
import sys

import gi

gi.require_version("Gst", "1.0")
gi.require_version("GstRtspServer", "1.0")
from gi.repository import GLib, Gst, GstRtspServer  # noqa: E402 - the versions come first

Gst.init(None)
door = GstRtspServer.RTSPMediaFactory()
door.set_launch("( videotestsrc is-live=true ! jpegenc ! rtpjpegpay name=pay0 )")
server = GstRtspServer.RTSPServer(address="127.0.0.1", service=sys.argv[1])
server.get_mount_points().add_factory("/door", door)
if server.attach(None) == 0:
    sys.exit(f"port {sys.argv[1]} cannot be used")
print("ready", flush=True)
GLib.MainLoop().run()
