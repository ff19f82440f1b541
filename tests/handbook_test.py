#!/usr/bin/python3
"""The pages of the handbook: every link leads somewhere, and nothing comes from outside. handbook_test.py FOLDER"""
import re
import sys
from pathlib import Path

pages = {page.name: page.read_text("utf-8") for page in Path(sys.argv[1]).glob("*.html")}
links = 0
for name, page in pages.items():
    for target, section in re.findall(r'(?:href="|url=)([^"#:]*)#?([^"]*)"', page):
        links += 1
        assert target in ("", *pages), (name, target)
        assert not section or f'id="{section}"' in pages[target or name], (name, target, section)
    assert not re.search(r'(?:src|href)="(?!data:)[^"]*(?::|\.png)', page), name
assert links > 40 and "data:image/png" in pages["handbuch.html"]
