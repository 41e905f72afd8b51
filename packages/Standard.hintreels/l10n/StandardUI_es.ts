<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Hintreels authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="es">
<context>
    <name>StandardUI</name>
    <message>
        <source>Documentation</source>
        <translation>Documentación</translation>
    </message>
    <message>
        <source>Keep open in a window</source>
        <translation>Mantener abierto en una ventana</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Reproducir de nuevo</translation>
    </message>
    <message>
        <source>Position in the clip</source>
        <translation>Posición en el clip</translation>
    </message>
    <message>
        <source>Flashes quickly, so it does not play by itself</source>
        <translation>Parpadea rápidamente, por eso no se reproduce solo</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Consejo</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>más</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Reproduciendo</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Terminado</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Sugerencias</translation>
    </message>
    <message>
        <source>Show hints</source>
        <translation>Mostrar sugerencias</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Solo texto</translation>
    </message>
    <message>
        <source>Title and summary</source>
        <translation>Título y resumen</translation>
    </message>
    <message>
        <source>Start small</source>
        <translation>Empezar en pequeño</translation>
    </message>
    <message>
        <source>Appear</source>
        <translation>Aparecen</translation>
    </message>
    <message>
        <source>When the pointer rests</source>
        <translation>Al detener el puntero</translation>
    </message>
    <message>
        <source>While Ctrl is held</source>
        <translation>Mientras se mantiene Ctrl</translation>
    </message>
    <message>
        <source>Only by a key</source>
        <translation>Solo con una tecla</translation>
    </message>
    <message>
        <source>After a rest of</source>
        <translation>Tras una pausa de</translation>
    </message>
    <message>
        <source>As usual</source>
        <translation>Como de costumbre</translation>
    </message>
    <message>
        <source>Stay for</source>
        <translation>Permanecen</translation>
    </message>
    <message>
        <source>Until closed</source>
        <translation>Hasta cerrarlas</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clips</translation>
    </message>
    <message>
        <source>Play by themselves</source>
        <translation>Reproducir solos</translation>
    </message>
    <message>
        <source>Play once</source>
        <translation>Reproducir una vez</translation>
    </message>
    <message>
        <source>Play on request</source>
        <translation>Reproducir a petición</translation>
    </message>
    <message>
        <source>Show captions</source>
        <translation>Mostrar subtítulos</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Tamaño del texto</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Menos</translation>
    </message>
    <message>
        <source>No clips by themselves</source>
        <translation>Sin clips automáticos</translation>
    </message>
    <message>
        <source>Hint settings</source>
        <translation>Ajustes de las sugerencias</translation>
    </message>
    <message>
        <source>Small once seen</source>
        <translation>Pequeño una vez visto</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>Forget what was seen</source>
        <translation>Olvidar lo visto</translation>
    </message>
</context>
<context>
    <name>KeyCaps</name>
    <message>
        <source>Backspace</source>
        <translation>Retroceso</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>Av Pág</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>Re Pág</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Impr Pant</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Arriba</translation>
    </message>
</context>
<context>
    <name>SpokenKeys</name>
    <message>
        <source>Control</source>
        <translation>Control</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Suprimir</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insertar</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Retroceder página</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Avanzar página</translation>
    </message>
</context>
</TS>
