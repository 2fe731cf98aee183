#!/usr/bin/python3
"""Reads a drawing with python3-ezdxf and prints what its audit finds, how many entities of each type model space holds,
how many the pictures of proxies show, and the box of those that are no texts."""
import collections
import functools
import sys

import ezdxf
from ezdxf import bbox
from ezdxf.proxygraphic import ProxyGraphic
from ezdxf.tools.binarydata import ByteStream

doc = ezdxf.readfile(sys.argv[1])
auditor = doc.audit()
for kind, findings in (('error', auditor.errors), ('fix', auditor.fixes)):
    for finding in findings:
        print(kind, finding.code, finding.message)
for name, count in sorted(collections.Counter(entity.dxftype() for entity in doc.modelspace()).items()):
    print(name, count)
# The library takes texts in pictures for UTF-8, whatever the drawing's code page.
ByteStream.read_padded_string = functools.partialmethod(ByteStream.read_padded_string, encoding=doc.encoding)
shown = [part for proxy in doc.modelspace().query('ACAD_PROXY_ENTITY')
         if proxy.proxy_graphic
         for part in ProxyGraphic(proxy.proxy_graphic, doc).virtual_entities()]
for name, count in sorted(collections.Counter(entity.dxftype() for entity in shown).items()):
    print('shown', name, count)
flat = [entity for entity in [*doc.modelspace(), *shown]
        if entity.dxftype() in ('LINE', 'ARC', 'CIRCLE', 'LWPOLYLINE', 'POLYLINE', 'HATCH')]
box = bbox.extents(flat)
if box.has_data:
    print('box', *box.extmin, *box.extmax)
