"""Chromium and Firefox over WebDriver BiDi, each seeing the fonts of one world alone."""
import base64
import json
import os
import re
import subprocess
import urllib.request

import websocket

# The files of a family's fonts: what a machine has on which nothing else is installed.
WORLDS = {"DejaVu": ("DejaVuSans*", "DejaVuSerif*"), "Liberation": ("LiberationSans-*", "LiberationSerif-*"),
          "Noto": ("NotoSans-*", "NotoSerif-*"), "Carlito": ("Carlito-*",)}
FONTS = """<!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig><include>/etc/fonts/fonts.conf</include>
<selectfont><rejectfont><glob>*.*</glob></rejectfont><acceptfont>%s</acceptfont></selectfont>
<cachedir>%s</cachedir></fontconfig>"""


class Browser:
    """One session: a page open at a time, fonts of one world."""

    def __init__(self, name, world, folder):
        self.name, self.commands, self.complaints = f"{name}, {world}", 0, []
        self.folder = folder / self.name
        self.folder.mkdir()
        fonts = self.folder / "fonts.conf"
        fonts.write_text(FONTS % ("".join(f"<glob>*/{glob}</glob>" for glob in WORLDS[world]), folder))
        self.environment = {**os.environ, "FONTCONFIG_FILE": str(fonts)}
        assert subprocess.check_output(["fc-list"], env=self.environment), f"keine Schrift {world}"
        address = self.chromium() if name == "Chromium" else self.firefox()
        self.socket = websocket.create_connection(address, suppress_origin=True, timeout=300)
        if name == "Firefox":
            self("session.new", capabilities={})
        self("session.subscribe", events=["log.entryAdded"])
        self.context = self("browsingContext.getTree")["contexts"][0]["context"]

    def start(self, *command):
        """Starts a program and returns the address that it says to listen on."""
        self.process = subprocess.Popen(command, env=self.environment, stdout=subprocess.PIPE,
                                        stderr=subprocess.STDOUT, text=True)
        for line in self.process.stdout:
            if found := re.search(r"(?:listening on|started successfully on port) (\S+?)\.?$", line):
                return found[1]
        raise AssertionError(f"{command[0]} startet nicht")

    def firefox(self):
        return self.start("firefox-esr", "--headless", "--no-remote", "--profile", str(self.folder),
                          "--remote-debugging-port=0") + "/session"

    def chromium(self):
        arguments = ["--headless=new", "--disable-dev-shm-usage", "--hide-scrollbars"]
        arguments += ["--no-sandbox"] if os.geteuid() == 0 else []
        wanted = {"webSocketUrl": True, "goog:chromeOptions": {"args": arguments}}
        port, request = self.start("chromedriver", "--port=0"), {"capabilities": {"alwaysMatch": wanted}}
        with urllib.request.urlopen(f"http://127.0.0.1:{port}/session", json.dumps(request).encode()) as reply:
            return json.load(reply)["value"]["capabilities"]["webSocketUrl"]

    def __call__(self, method, **params):
        self.commands += 1
        self.socket.send(json.dumps({"id": self.commands, "method": method, "params": params}))
        while (message := json.loads(self.socket.recv())).get("id") != self.commands:
            self.complaints.append(message["params"]["text"])
        assert message["type"] == "success", message
        return message["result"]

    def resize(self, width, height=1000):
        self("browsingContext.setViewport", context=self.context, viewport={"width": width, "height": height})

    def open(self, file):
        self("browsingContext.navigate", context=self.context, url=file.resolve().as_uri(), wait="complete")

    def run(self, function, argument=None):
        """What a function of the page returns, as JSON carries it."""
        call = f"() => JSON.stringify(({function})({json.dumps(argument)}) ?? null)"
        reply = self("script.callFunction", functionDeclaration=call, awaitPromise=False,
                     target={"context": self.context})
        assert reply["type"] == "success", reply
        return json.loads(reply["result"]["value"])

    def printed(self, width=21.0, height=29.7):
        """The open page on paper of this size in centimetres, as PDF."""
        reply = self("browsingContext.print", context=self.context, page={"width": width, "height": height},
                     shrinkToFit=False)
        return base64.b64decode(reply["data"])

    def picture(self):
        return base64.b64decode(self("browsingContext.captureScreenshot", context=self.context)["data"])

    def close(self):
        self("browser.close")
        self.process.terminate()
        self.process.wait()
