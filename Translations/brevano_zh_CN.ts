<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CategoryBar</name>
    <message>
        <source>Media</source>
        <translation>媒体</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>转场</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>特效</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>元素</translation>
    </message>
    <message>
        <source>Split Screen</source>
        <translation>分屏</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>素材库</translation>
    </message>
    <message>
        <source>Stock Provider</source>
        <translation>在线素材</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>模板</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>More categories</source>
        <translation>更多类别</translation>
    </message>
</context>
<context>
    <name>CoverView</name>
    <message>
        <source>Picture of %1</source>
        <translation>%1 的画面</translation>
    </message>
</context>
<context>
    <name>FactSheet</name>
    <message>
        <source>%1:</source>
        <translation>%1：</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>%1 cannot be shown, because no file manager answered (%2) and its folder could not be opened.</source>
        <translation>无法显示 %1：没有文件管理器响应（%2），其所在文件夹也无法打开。</translation>
    </message>
</context>
<context>
    <name>INxViewMoreSplitLinePainter</name>
    <message>
        <source>View More</source>
        <translation>查看更多</translation>
    </message>
</context>
<context>
    <name>ImportDesk</name>
    <message>
        <source>There is no project to import into.</source>
        <translation>没有可导入的项目。</translation>
    </message>
    <message>
        <source>This project cannot be changed.</source>
        <translation>此项目无法更改。</translation>
    </message>
    <message>
        <source>Files cannot be imported into this folder.</source>
        <translation>无法将文件导入此文件夹。</translation>
    </message>
</context>
<context>
    <name>ImportReportModel</name>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
</context>
<context>
    <name>ImportReportView</name>
    <message>
        <source>Import Report</source>
        <translation>导入报告</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Show the media, or the file on disk (Enter)</source>
        <translation>显示素材或磁盘上的文件（Enter）</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Import or read the selected files once more (F5)</source>
        <translation>再次导入或读取所选文件（F5）</translation>
    </message>
    <message>
        <source>Copy Lines</source>
        <translation>复制行</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy the whole report as text</source>
        <translation>将整个报告复制为文本</translation>
    </message>
    <message>
        <source>After an import you see here which files could not be added, and why.</source>
        <translation>导入后，此处会列出未能添加的文件及其原因。</translation>
    </message>
    <message>
        <source>All files were added.</source>
        <translation>所有文件均已添加。</translation>
    </message>
</context>
<context>
    <name>ImportStatus</name>
    <message>
        <source>Import Progress</source>
        <translation>导入进度</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Stop importing; what was added stays</source>
        <translation>停止导入；已添加的内容会保留</translation>
    </message>
    <message>
        <source>Cancel Import</source>
        <translation>取消导入</translation>
    </message>
    <message>
        <source>Import Report</source>
        <translation>导入报告</translation>
    </message>
    <message>
        <source>Importing: %1 found, %2 added, %3 read</source>
        <translation>正在导入：找到 %1，已添加 %2，已读取 %3</translation>
    </message>
    <message>
        <source>Reading %1 of %2</source>
        <translation>正在读取 %1 / %2</translation>
    </message>
    <message>
        <source>Files cannot be read: %1</source>
        <translation>无法读取文件：%1</translation>
    </message>
</context>
<context>
    <name>ImportWords</name>
    <message numerus="yes">
        <source>%Ln already there</source>
        <translation>
            <numerusform>%Ln 个已存在</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln refused</source>
        <translation>
            <numerusform>%Ln 个被拒绝</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln cannot be read</source>
        <translation>
            <numerusform>%Ln 个无法读取</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not reached</source>
        <translation>
            <numerusform>%Ln 个未处理</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden left out</source>
        <translation>
            <numerusform>跳过 %Ln 个隐藏项</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln of other kinds left out</source>
        <translation>
            <numerusform>跳过 %Ln 个其他类型的文件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln met twice</source>
        <translation>
            <numerusform>%Ln 个重复出现</numerusform>
        </translation>
    </message>
    <message>
        <source>Already there</source>
        <translation>已存在</translation>
    </message>
    <message>
        <source>Added, a copy</source>
        <translation>已添加（副本）</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>被拒绝</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>Not reached</source>
        <translation>未处理</translation>
    </message>
    <message numerus="yes">
        <source>%Ln added</source>
        <translation>
            <numerusform>已添加 %Ln 个</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>InfoFacts</name>
    <message>
        <source>%1 frames a second (they vary)</source>
        <translation>每秒 %1 帧（可变）</translation>
    </message>
    <message>
        <source>%1 frames a second</source>
        <translation>每秒 %1 帧</translation>
    </message>
    <message>
        <source>turned by %1 degrees</source>
        <translation>旋转 %1 度</translation>
    </message>
    <message>
        <source>%1 bit</source>
        <translation>%1 位</translation>
    </message>
    <message>
        <source>%1 channel</source>
        <translation>%1 声道</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1 声道</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>%1 frame</source>
        <translation>%1 帧</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 帧</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>声音</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>摄像机</translation>
    </message>
    <message>
        <source>Timecode</source>
        <translation>时间码</translation>
    </message>
    <message>
        <source>Reel</source>
        <translation>卷号</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
</context>
<context>
    <name>InfoPanel</name>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>The file is missing. Choose where it is now, or have a folder searched for all missing files.</source>
        <translation>文件丢失。请选择它现在的位置，或在某个文件夹中搜索所有丢失的文件。</translation>
    </message>
    <message>
        <source>The file cannot be read. %1</source>
        <translation>无法读取文件。%1</translation>
    </message>
    <message>
        <source>The file has not been read yet.</source>
        <translation>尚未读取文件。</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>分区</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>封面</translation>
    </message>
    <message>
        <source>Film strip</source>
        <translation>胶片条</translation>
    </message>
    <message>
        <source>Used on</source>
        <translation>用于</translation>
    </message>
    <message>
        <source>%1 (%2 times)</source>
        <comment>timeline, number of uses</comment>
        <translation>%1（%2 次）</translation>
    </message>
    <message>
        <source>no timeline</source>
        <translation>无时间线</translation>
    </message>
    <message>
        <source>Nothing is selected</source>
        <translation>未选择任何内容</translation>
    </message>
    <message>
        <source>%1 media</source>
        <comment>selected ones</comment>
        <translation>%1 个素材</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>媒体</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>being added up</source>
        <translation>正在统计</translation>
    </message>
    <message>
        <source>%1 (not known of %2)</source>
        <translation>%1（%2 个未知）</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>%Ln media</source>
        <translation>
            <numerusform>%Ln 个素材</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected</source>
        <translation>
            <numerusform>已选择 %Ln 个</numerusform>
        </translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>打开项目</translation>
    </message>
    <message>
        <source>Brevano projects</source>
        <translation>Brevano 项目</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>新建项目</translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>保存副本</translation>
    </message>
    <message>
        <source>Copied to %1</source>
        <translation>已复制到 %1</translation>
    </message>
    <message>
        <source>Brevano %1
The media library of a video editor.
Free software under the GNU Lesser General Public License, version 2.1 or later.</source>
        <translation>Brevano %1
视频编辑器的媒体库。
自由软件，采用 GNU 宽通用公共许可证第 2.1 版或更高版本。</translation>
    </message>
    <message>
        <source>S&amp;kin</source>
        <translation>外观(&amp;K)</translation>
    </message>
    <message>
        <source>La&amp;nguage</source>
        <translation>语言(&amp;N)</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Import Report</source>
        <translation>导入报告</translation>
    </message>
</context>
<context>
    <name>MediaMenu</name>
    <message>
        <source>Media</source>
        <translation>媒体</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>S&amp;ynchronize by Sound</source>
        <translation>按声音同步(&amp;Y)</translation>
    </message>
</context>
<context>
    <name>MissingSearch</name>
    <message>
        <source>Looking for missing files: %1 seen</source>
        <translation>正在查找丢失的文件：已检查 %1 个</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could be any of these: %2</source>
        <translation>“%1”可能是以下任意一个：%2</translation>
    </message>
    <message>
        <source>%1 of %2 missing files found</source>
        <translation>已找到 %1 个丢失的文件，共 %2 个</translation>
    </message>
    <message>
        <source>The search was cancelled. Nothing was relinked.</source>
        <translation>搜索已取消。未重新链接任何内容。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>NMessageDialog</name>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>NxEngineImporter</name>
    <message>
        <source>The import was cancelled.</source>
        <translation>导入已取消。</translation>
    </message>
    <message>
        <source>The project was closed.</source>
        <translation>项目已关闭。</translation>
    </message>
</context>
<context>
    <name>NxEngineMedia</name>
    <message>
        <source>The file is missing.</source>
        <translation>文件丢失。</translation>
    </message>
    <message>
        <source>The drive does not answer.</source>
        <translation>驱动器没有响应。</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>无法读取文件。</translation>
    </message>
    <message>
        <source>There is no file of this name, but something else.</source>
        <translation>此名称对应的不是文件，而是其他内容。</translation>
    </message>
    <message>
        <source>You have no permission to read the file.</source>
        <translation>您没有读取该文件的权限。</translation>
    </message>
</context>
<context>
    <name>NxFolderMediaManagerPresenter</name>
    <message>
        <source>Are you sure you want to delete the selected folder</source>
        <translation>确定要删除所选文件夹吗</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>警告</translation>
    </message>
</context>
<context>
    <name>NxFolderRows</name>
    <message numerus="yes">
        <source>%1, %n media</source>
        <translation>
            <numerusform>%1，%n 个素材</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NxFolderTreeView</name>
    <message>
        <source>There is a folder &quot;%1&quot; in &quot;%2&quot; already.</source>
        <translation>“%2”中已有文件夹“%1”。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be moved to &quot;%2&quot;.</source>
        <translation>无法将文件夹“%1”移到“%2”。</translation>
    </message>
    <message>
        <source>The media cannot be moved to &quot;%1&quot;.</source>
        <translation>无法将素材移到“%1”。</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>New Folder %1</source>
        <translation>新建文件夹 %1</translation>
    </message>
    <message>
        <source>No folder can be made in &quot;%1&quot;.</source>
        <translation>无法在“%1”中新建文件夹。</translation>
    </message>
    <message>
        <source>A folder needs a name. &quot;%1&quot; keeps its own.</source>
        <translation>文件夹需要名称。“%1”保留原名。</translation>
    </message>
    <message>
        <source>There is a folder &quot;%2&quot; already. &quot;%1&quot; keeps its name.</source>
        <translation>已有文件夹“%2”。“%1”保留原名。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be called &quot;%2&quot;.</source>
        <translation>文件夹“%1”不能命名为“%2”。</translation>
    </message>
</context>
<context>
    <name>NxImportJob</name>
    <message>
        <source>The drive does not answer.</source>
        <translation>驱动器没有响应。</translation>
    </message>
    <message>
        <source>What was imported has been taken back.</source>
        <translation>已导入的内容被撤销。</translation>
    </message>
    <message>
        <source>The project can no longer be written.</source>
        <translation>无法再写入项目。</translation>
    </message>
    <message>
        <source>The folder it was meant for has been removed.</source>
        <translation>目标文件夹已被移除。</translation>
    </message>
    <message>
        <source>It is already in &quot;%1&quot;.</source>
        <translation>它已在“%1”中。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be made here.</source>
        <translation>无法在此处新建文件夹“%1”。</translation>
    </message>
</context>
<context>
    <name>NxImportNow</name>
    <message>
        <source>It was named twice.</source>
        <translation>它被指定了两次。</translation>
    </message>
    <message>
        <source>It is already in &quot;%1&quot;.</source>
        <translation>它已在“%1”中。</translation>
    </message>
</context>
<context>
    <name>NxImportRules</name>
    <message>
        <source>Files of the type &quot;%1&quot; cannot be imported.</source>
        <translation>无法导入“%1”类型的文件。</translation>
    </message>
    <message>
        <source>Its name does not tell whether it is media, and files cannot be read yet to find out.</source>
        <translation>无法从文件名判断它是否为素材，目前也还不能读取文件来确认。</translation>
    </message>
    <message>
        <source>The name of the folder is blank.</source>
        <translation>文件夹名称为空。</translation>
    </message>
    <message>
        <source>The name of the folder is longer than 255 characters.</source>
        <translation>文件夹名称超过 255 个字符。</translation>
    </message>
    <message>
        <source>It does not exist.</source>
        <translation>它不存在。</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>无法读取：%1。</translation>
    </message>
    <message>
        <source>There is no permission to read it.</source>
        <translation>没有读取权限。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>文件为空。</translation>
    </message>
    <message>
        <source>It is a pipe, a socket or a device, not a file.</source>
        <translation>它是管道、套接字或设备，不是文件。</translation>
    </message>
    <message>
        <source>Its path is too long to be opened.</source>
        <translation>路径过长，无法打开。</translation>
    </message>
    <message>
        <source>Its name is not valid UTF-8.</source>
        <translation>名称不是有效的 UTF-8。</translation>
    </message>
    <message>
        <source>It is a link to something that does not exist.</source>
        <translation>它是指向不存在目标的链接。</translation>
    </message>
    <message>
        <source>The folder cannot be read: %1.</source>
        <translation>无法读取文件夹：%1。</translation>
    </message>
</context>
<context>
    <name>NxMediaColumns</name>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
</context>
<context>
    <name>NxMediaItemGroup</name>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>less than 1min</source>
        <translation>少于 1 分钟</translation>
    </message>
    <message>
        <source>more than 60min</source>
        <translation>超过 60 分钟</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>NxMediaItemManagerPresenter</name>
    <message>
        <source>Unable to locate file. Click &apos;RELOCATE&apos; to try importing the file again, &apos;DELETE&apos; to delete it, or &apos;IGNORE&apos; to abort this operation.</source>
        <translation>找不到文件。单击“重新定位”可再次尝试导入该文件，单击“删除”可将其删除，单击“忽略”可中止此操作。</translation>
    </message>
    <message>
        <source>RELOCATE</source>
        <translation>重新定位</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>IGNORE</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>重新链接</translation>
    </message>
    <message>
        <source>%1 cannot be read as media, so it cannot take the place of &quot;%2&quot;.</source>
        <translation>%1 无法作为素材读取，因此不能替换“%2”。</translation>
    </message>
    <message>
        <source>The selected file&apos;s duration is different from the clip you used in project and may cause issues, please reselect another file with the same duration.</source>
        <translation>所选文件的时长与项目中使用的片段不同，可能会引起问题，请重新选择时长相同的文件。</translation>
    </message>
    <message>
        <source>There is not enough space in the specified output directory, please choose another one.
Dise Space needed :%1 MB, remaining:%2 MB.</source>
        <translation>指定的输出目录空间不足，请选择其他目录。
所需磁盘空间：%1 MB，剩余：%2 MB。</translation>
    </message>
    <message>
        <source>Auto Synchronization</source>
        <translation>自动同步</translation>
    </message>
    <message>
        <source>The selected clips cannot be synchronized, please reselect the clips.</source>
        <translation>所选片段无法同步，请重新选择片段。</translation>
    </message>
    <message>
        <source>After the audio and video are synced, the audio and video will be added to the timeline simultaneously. Do you want to mute the original audio within the video file automatically?</source>
        <translation>音频和视频同步后，将同时添加到时间线。是否自动将视频文件中的原始音频静音？</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected item?</source>
        <translation>确定要删除所选项目吗？</translation>
    </message>
    <message>
        <source>Stop asking for now.</source>
        <translation>暂时不再询问。</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected matter?</source>
        <translation>确定要删除所选素材吗？</translation>
    </message>
    <message>
        <source>Deleting the file will affect the used project. You can retrieve it by downloading the record</source>
        <translation>删除该文件会影响使用它的项目。您可以通过下载记录找回</translation>
    </message>
    <message>
        <source>One or more of your selected clips have been added to the timeline. Deleting them from the library will also delete them from the timeline.</source>
        <translation>所选片段中有一个或多个已添加到时间线。从媒体库中删除它们时，也会将其从时间线中删除。</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the custom project template item &quot;%1?&quot;</source>
        <translation>确定要删除自定义项目模板“%1”吗？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be relinked to %2.</source>
        <translation>无法将“%1”重新链接到 %2。</translation>
    </message>
</context>
<context>
    <name>NxMediaItemModel</name>
    <message>
        <source>View More</source>
        <translation>查看更多</translation>
    </message>
    <message>
        <source>Import Media</source>
        <translation>导入媒体</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>已使用</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>帧速率</translation>
    </message>
    <message>
        <source>In Point</source>
        <translation>入点</translation>
    </message>
    <message>
        <source>Out Point</source>
        <translation>出点</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Audio Info</source>
        <translation>音频信息</translation>
    </message>
    <message>
        <source>Date Created</source>
        <translation>创建日期</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>媒体库</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>收藏</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Find Similar</source>
        <translation>查找相似内容</translation>
    </message>
</context>
<context>
    <name>NxMediaItemPainter</name>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>转场</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>特效</translation>
    </message>
    <message>
        <source>Split screen</source>
        <translation>分屏</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>元素</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>模板</translation>
    </message>
    <message>
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
</context>
<context>
    <name>NxMediaItemView</name>
    <message>
        <source>Media</source>
        <translation>媒体</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>used</source>
        <comment>A media</comment>
        <translation>已使用</translation>
    </message>
    <message>
        <source>missing</source>
        <comment>A media</comment>
        <translation>丢失</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
</context>
<context>
    <name>NxMediaLibraryUtils</name>
    <message>
        <source>HEVC Codec must be installed to solve this failure. Clicking Yes will install and enabled this codec for immediate use.</source>
        <translation>必须安装 HEVC 编解码器才能解决此问题。单击“是”将安装并启用此编解码器，可立即使用。</translation>
    </message>
</context>
<context>
    <name>NxMediaNotice</name>
    <message>
        <source>No folder is shown</source>
        <translation>未显示文件夹</translation>
    </message>
    <message>
        <source>Choose a folder to see its media.</source>
        <translation>选择一个文件夹以查看其中的素材。</translation>
    </message>
    <message>
        <source>This folder is empty</source>
        <translation>此文件夹为空</translation>
    </message>
    <message>
        <source>Drop files here or import them.</source>
        <translation>将文件拖到此处或导入文件。</translation>
    </message>
    <message>
        <source>Files cannot be imported into it.</source>
        <translation>无法将文件导入其中。</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>未找到任何内容</translation>
    </message>
    <message>
        <source>The search found no media.</source>
        <translation>搜索未找到素材。</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在加载...</translation>
    </message>
    <message>
        <source>The media of this folder are on their way.</source>
        <translation>正在获取此文件夹的素材。</translation>
    </message>
    <message>
        <source>Loading failed</source>
        <translation>加载失败</translation>
    </message>
    <message>
        <source>The media of this folder did not arrive.</source>
        <translation>未能获取此文件夹的素材。</translation>
    </message>
    <message>
        <source>Nothing here has a name that holds &quot;%1&quot;.</source>
        <translation>此处没有名称包含“%1”的内容。</translation>
    </message>
    <message>
        <source>Nothing here is a video.</source>
        <translation>此处没有视频。</translation>
    </message>
    <message>
        <source>Nothing here is a video whose name holds &quot;%1&quot;.</source>
        <translation>此处没有名称包含“%1”的视频。</translation>
    </message>
    <message>
        <source>Nothing here is a photo.</source>
        <translation>此处没有照片。</translation>
    </message>
    <message>
        <source>Nothing here is a photo whose name holds &quot;%1&quot;.</source>
        <translation>此处没有名称包含“%1”的照片。</translation>
    </message>
    <message>
        <source>Nothing here is audio.</source>
        <translation>此处没有音频。</translation>
    </message>
    <message>
        <source>Nothing here is audio whose name holds &quot;%1&quot;.</source>
        <translation>此处没有名称包含“%1”的音频。</translation>
    </message>
    <message>
        <source>Nothing here is a subtitle.</source>
        <translation>此处没有字幕。</translation>
    </message>
    <message>
        <source>Nothing here is a subtitle whose name holds &quot;%1&quot;.</source>
        <translation>此处没有名称包含“%1”的字幕。</translation>
    </message>
    <message>
        <source>Nothing here passes the filter.</source>
        <translation>此处没有符合筛选条件的内容。</translation>
    </message>
    <message>
        <source>Nothing here passes the filter with &quot;%1&quot; in its name.</source>
        <translation>此处没有名称包含“%1”且符合筛选条件的内容。</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Show all media of the folder</source>
        <translation>显示文件夹中的所有素材</translation>
    </message>
</context>
<context>
    <name>NxMediaPanelBinder</name>
    <message>
        <source>&quot;%1&quot; cannot be renamed to &quot;%2&quot;.</source>
        <translation>无法将“%1”重命名为“%2”。</translation>
    </message>
</context>
<context>
    <name>NxPictureService</name>
    <message>
        <source>The picture was made but cannot be loaded from the cache folder.</source>
        <translation>图片已生成，但无法从缓存文件夹加载。</translation>
    </message>
</context>
<context>
    <name>NxPreviewPlayer</name>
    <message>
        <source>Playing the file takes too much memory.</source>
        <translation>播放该文件占用的内存过多。</translation>
    </message>
    <message>
        <source>Playing the file crashed its player.</source>
        <translation>播放该文件导致播放器崩溃。</translation>
    </message>
    <message>
        <source>Playing the file took too long.</source>
        <translation>播放该文件耗时过长。</translation>
    </message>
    <message>
        <source>The program that plays films said nothing.</source>
        <translation>播放影片的程序没有响应。</translation>
    </message>
</context>
<context>
    <name>NxProjectStore</name>
    <message>
        <source>the facts of its footage break off</source>
        <translation>素材信息不完整</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>无法创建文件夹</translation>
    </message>
    <message>
        <source>folders %1 and %2 lie in one folder and have one name</source>
        <translation>文件夹 %1 和 %2 位于同一文件夹中且名称相同</translation>
    </message>
    <message>
        <source>a file of this name is there already</source>
        <translation>已存在同名文件</translation>
    </message>
    <message>
        <source>is not a Brevano project: %1</source>
        <translation>不是 Brevano 项目：%1</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>is damaged: its beginning holds only zeros</source>
        <translation>已损坏：开头全部为零</translation>
    </message>
    <message>
        <source>it is another kind of file</source>
        <translation>它是其他类型的文件</translation>
    </message>
    <message>
        <source>it is a database of another program</source>
        <translation>它是其他程序的数据库</translation>
    </message>
    <message>
        <source>stands in a folder that cannot be written</source>
        <translation>位于无法写入的文件夹中</translation>
    </message>
    <message>
        <source>cannot be written, since no lock can be made beside it</source>
        <translation>无法写入，因为无法在其旁边创建锁文件</translation>
    </message>
    <message>
        <source>is open in another window</source>
        <translation>已在另一个窗口中打开</translation>
    </message>
    <message>
        <source>is open in another window (process %1 on host %2)</source>
        <translation>已在另一个窗口中打开（主机 %2 上的进程 %1）</translation>
    </message>
    <message>
        <source>; if that computer no longer runs it, remove %1</source>
        <translation>；如果那台计算机已不再运行它，请删除 %1</translation>
    </message>
    <message>
        <source>cannot be made: a file of this name is there already</source>
        <translation>无法创建：已存在同名文件</translation>
    </message>
    <message>
        <source>cannot be made: there is no such folder</source>
        <translation>无法创建：文件夹不存在</translation>
    </message>
    <message>
        <source>cannot be made: its folder is write-protected</source>
        <translation>无法创建：文件夹受写保护</translation>
    </message>
    <message>
        <source>cannot be made: its name is too long</source>
        <translation>无法创建：名称过长</translation>
    </message>
    <message numerus="yes">
        <source>entries with impossible values are left out: %n</source>
        <translation>
            <numerusform>已忽略含无效值的条目：%n</numerusform>
        </translation>
    </message>
    <message>
        <source>its counters cannot be read</source>
        <translation>无法读取计数器</translation>
    </message>
    <message>
        <source>the list of folders breaks off</source>
        <translation>文件夹列表不完整</translation>
    </message>
    <message>
        <source>the list of media breaks off</source>
        <translation>素材列表不完整</translation>
    </message>
    <message>
        <source>the list of resources breaks off</source>
        <translation>资源列表不完整</translation>
    </message>
    <message>
        <source>the list of timelines breaks off</source>
        <translation>时间线列表不完整</translation>
    </message>
    <message>
        <source>the list of clips breaks off</source>
        <translation>片段列表不完整</translation>
    </message>
    <message>
        <source>the undo steps break off</source>
        <translation>撤销步骤不完整</translation>
    </message>
    <message>
        <source>the place within the undo steps is impossible</source>
        <translation>撤销步骤中的位置无效</translation>
    </message>
    <message>
        <source>was made by a newer version (schema %1, this program knows %2)</source>
        <translation>由更新的版本创建（架构 %1，本程序支持 %2）</translation>
    </message>
    <message>
        <source>a temporary copy cannot be made: %1</source>
        <translation>无法创建临时副本：%1</translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation>它被截断</translation>
    </message>
    <message>
        <source>is not a Brevano project: it is a database of another program</source>
        <translation>不是 Brevano 项目：它是其他程序的数据库</translation>
    </message>
    <message>
        <source>is damaged: its structure cannot be read</source>
        <translation>已损坏：无法读取其结构</translation>
    </message>
    <message>
        <source>is damaged: %1</source>
        <translation>已损坏：%1</translation>
    </message>
    <message>
        <source>its path is too long</source>
        <translation>路径过长</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>它是文件夹</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>它不是文件</translation>
    </message>
    <message>
        <source>was opened for reading only</source>
        <translation>以只读方式打开</translation>
    </message>
    <message>
        <source>is write-protected</source>
        <translation>受写保护</translation>
    </message>
    <message>
        <source>is closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>it does not hold entry %1</source>
        <translation>其中没有条目 %1</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>磁盘已满</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>没有权限</translation>
    </message>
    <message>
        <source>it is write-protected</source>
        <translation>它受写保护</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>它已损坏</translation>
    </message>
    <message>
        <source>it is not a Brevano project</source>
        <translation>它不是 Brevano 项目</translation>
    </message>
    <message>
        <source>another program holds it</source>
        <translation>正被其他程序占用</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>a text is too long for it</source>
        <translation>有文本过长</translation>
    </message>
    <message>
        <source>the disk quota is used up</source>
        <translation>磁盘配额已用完</translation>
    </message>
    <message>
        <source>its drive is write-protected</source>
        <translation>驱动器受写保护</translation>
    </message>
    <message>
        <source>the drive reports an error</source>
        <translation>驱动器报告错误</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>its drive is gone</source>
        <translation>驱动器已断开</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>无法打开：%1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>无法写入：%1</translation>
    </message>
    <message>
        <source>cannot be written as a copy: %1</source>
        <translation>无法写入副本：%1</translation>
    </message>
    <message>
        <source>cannot be removed: %1</source>
        <translation>无法移除：%1</translation>
    </message>
    <message>
        <source>clips %1 and %2 cover each other</source>
        <translation>片段 %1 和 %2 相互重叠</translation>
    </message>
</context>
<context>
    <name>NxRelinkJob</name>
    <message>
        <source>The drive does not answer.</source>
        <translation>驱动器没有响应。</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>它不是文件夹。</translation>
    </message>
    <message>
        <source>Not all files could be compared. %1</source>
        <translation>部分文件无法比较。%1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was left out. %2</source>
        <translation>已跳过“%1”。%2</translation>
    </message>
</context>
<context>
    <name>NxResourceCatalogue</name>
    <message>
        <source>Project Media</source>
        <translation>项目媒体</translation>
    </message>
    <message>
        <source>Shared Media</source>
        <translation>共享媒体</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>收藏夹</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>已下载</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>首页</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Download Records</source>
        <translation>下载记录</translation>
    </message>
    <message>
        <source>Calm Loop %1</source>
        <translation>舒缓循环 %1</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>舒缓</translation>
    </message>
    <message>
        <source>Driving Beat %1</source>
        <translation>动感节拍 %1</translation>
    </message>
    <message>
        <source>Beats</source>
        <translation>节拍</translation>
    </message>
    <message>
        <source>Street Sound %1</source>
        <translation>街头声音 %1</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>音效</translation>
    </message>
    <message>
        <source>Lower Third %1</source>
        <translation>下方字幕条 %1</translation>
    </message>
    <message>
        <source>Lower Thirds</source>
        <translation>下方字幕条</translation>
    </message>
    <message>
        <source>Opener %1</source>
        <translation>片头 %1</translation>
    </message>
    <message>
        <source>Openers</source>
        <translation>片头</translation>
    </message>
    <message>
        <source>Credits %1</source>
        <translation>片尾字幕 %1</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>片尾字幕</translation>
    </message>
    <message>
        <source>Dissolve %1</source>
        <translation>叠化 %1</translation>
    </message>
    <message>
        <source>Dissolves</source>
        <translation>叠化</translation>
    </message>
    <message>
        <source>Wipe %1</source>
        <translation>擦除 %1</translation>
    </message>
    <message>
        <source>Wipes</source>
        <translation>擦除</translation>
    </message>
    <message>
        <source>Slide %1</source>
        <translation>滑动 %1</translation>
    </message>
    <message>
        <source>Slides</source>
        <translation>滑动</translation>
    </message>
    <message>
        <source>Blur %1</source>
        <translation>模糊 %1</translation>
    </message>
    <message>
        <source>Blurs</source>
        <translation>模糊</translation>
    </message>
    <message>
        <source>Film Look %1</source>
        <translation>电影风格 %1</translation>
    </message>
    <message>
        <source>Looks</source>
        <translation>风格</translation>
    </message>
    <message>
        <source>Glow %1</source>
        <translation>发光 %1</translation>
    </message>
    <message>
        <source>Glows</source>
        <translation>发光</translation>
    </message>
    <message>
        <source>Arrow %1</source>
        <translation>箭头 %1</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>箭头</translation>
    </message>
    <message>
        <source>Sticker %1</source>
        <translation>贴纸 %1</translation>
    </message>
    <message>
        <source>Stickers</source>
        <translation>贴纸</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>边框 %1</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>边框</translation>
    </message>
    <message>
        <source>Two Pictures %1</source>
        <translation>双画面 %1</translation>
    </message>
    <message>
        <source>Two Pictures</source>
        <translation>双画面</translation>
    </message>
    <message>
        <source>Three Pictures %1</source>
        <translation>三画面 %1</translation>
    </message>
    <message>
        <source>Three Pictures</source>
        <translation>三画面</translation>
    </message>
    <message>
        <source>Four Pictures %1</source>
        <translation>四画面 %1</translation>
    </message>
    <message>
        <source>Four Pictures</source>
        <translation>四画面</translation>
    </message>
    <message>
        <source>City Clip %1</source>
        <translation>城市片段 %1</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>城市</translation>
    </message>
    <message>
        <source>Nature Picture %1</source>
        <translation>自然图片 %1</translation>
    </message>
    <message>
        <source>Nature</source>
        <translation>自然</translation>
    </message>
    <message>
        <source>Reaction %1</source>
        <translation>表情反应 %1</translation>
    </message>
    <message>
        <source>Reactions</source>
        <translation>表情反应</translation>
    </message>
    <message>
        <source>Stock Picture %1</source>
        <translation>库存图片 %1</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Stock Clip %1</source>
        <translation>库存片段 %1</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>片段</translation>
    </message>
    <message>
        <source>Stock Track %1</source>
        <translation>库存音轨 %1</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>音轨</translation>
    </message>
    <message>
        <source>Travel Template %1</source>
        <translation>旅行模板 %1</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>旅行</translation>
    </message>
    <message>
        <source>Family Template %1</source>
        <translation>家庭模板 %1</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>家庭</translation>
    </message>
</context>
<context>
    <name>NxWorkerLocation</name>
    <message>
        <source>The program that reads footage is not installed; it was looked for as %1.</source>
        <translation>未安装读取素材的程序；曾在 %1 查找。</translation>
    </message>
</context>
<context>
    <name>NxWorkerPool</name>
    <message>
        <source>Reading the file takes too much memory.</source>
        <translation>读取该文件占用的内存过多。</translation>
    </message>
    <message>
        <source>Reading the file crashed its reader.</source>
        <translation>读取该文件导致读取程序崩溃。</translation>
    </message>
    <message>
        <source>%1 was started and said nothing.</source>
        <translation>%1 已启动但没有响应。</translation>
    </message>
    <message>
        <source>Reading the file took too long.</source>
        <translation>读取该文件耗时过长。</translation>
    </message>
    <message>
        <source>The drive does not answer.</source>
        <translation>驱动器没有响应。</translation>
    </message>
</context>
<context>
    <name>NxWorkerProcess</name>
    <message>
        <source>%1 does not speak as it should.</source>
        <translation>%1 的响应不符合预期。</translation>
    </message>
    <message>
        <source>%1 speaks version %2, this program version %3: they are not of one installation.</source>
        <translation>%1 使用版本 %2，本程序使用版本 %3：二者不属于同一安装。</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2.</source>
        <translation>无法启动 %1：%2。</translation>
    </message>
    <message>
        <source>%1 took too much memory.</source>
        <translation>%1 占用的内存过多。</translation>
    </message>
    <message>
        <source>%1 ended with code %2.</source>
        <translation>%1 以代码 %2 结束。</translation>
    </message>
</context>
<context>
    <name>PanelActions</name>
    <message>
        <source>&amp;New Project...</source>
        <translation>新建项目(&amp;N)...</translation>
    </message>
    <message>
        <source>&amp;Open Project...</source>
        <translation>打开项目(&amp;O)...</translation>
    </message>
    <message>
        <source>Save a &amp;Copy...</source>
        <translation>保存副本(&amp;C)...</translation>
    </message>
    <message>
        <source>C&amp;lose Project</source>
        <translation>关闭项目(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Import Files...</source>
        <translation>导入文件(&amp;I)...</translation>
    </message>
    <message>
        <source>Import &amp;Folder...</source>
        <translation>导入文件夹(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Copy Name</source>
        <translation>复制名称(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>复制路径(&amp;P)</translation>
    </message>
    <message>
        <source>Pas&amp;te</source>
        <translation>粘贴(&amp;T)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>Select &amp;Nothing</source>
        <translation>全不选(&amp;N)</translation>
    </message>
    <message>
        <source>R&amp;ename</source>
        <translation>重命名(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Delete from Project</source>
        <translation>从项目中删除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete Unu&amp;sed Media...</source>
        <translation>删除未使用的素材(&amp;S)...</translation>
    </message>
    <message>
        <source>New F&amp;older</source>
        <translation>新建文件夹(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>搜索(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Clear Filters</source>
        <translation>清除筛选(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>列表(&amp;L)</translation>
    </message>
    <message>
        <source>Small Thumb&amp;nails</source>
        <translation>小缩略图(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Medium Thumbnails</source>
        <translation>中缩略图(&amp;M)</translation>
    </message>
    <message>
        <source>La&amp;rge Thumbnails</source>
        <translation>大缩略图(&amp;R)</translation>
    </message>
    <message>
        <source>Lar&amp;ger</source>
        <translation>放大(&amp;G)</translation>
    </message>
    <message>
        <source>Sm&amp;aller</source>
        <translation>缩小(&amp;A)</translation>
    </message>
    <message>
        <source>Sort &amp;Descending</source>
        <translation>降序排序(&amp;D)</translation>
    </message>
    <message>
        <source>Groups D&amp;escending</source>
        <translation>分组降序(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Folders</source>
        <translation>文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>信息(&amp;I)</translation>
    </message>
    <message>
        <source>Import Re&amp;port</source>
        <translation>导入报告(&amp;P)</translation>
    </message>
    <message>
        <source>Dar&amp;k</source>
        <translation>深色(&amp;K)</translation>
    </message>
    <message>
        <source>Ligh&amp;t</source>
        <translation>浅色(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Add to Timeline</source>
        <translation>添加到时间线(&amp;A)</translation>
    </message>
    <message>
        <source>Re&amp;link...</source>
        <translation>重新链接(&amp;L)...</translation>
    </message>
    <message>
        <source>Find &amp;Missing Files...</source>
        <translation>查找丢失的文件(&amp;M)...</translation>
    </message>
    <message>
        <source>&amp;Read Again</source>
        <translation>重新读取(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Show in File Manager</source>
        <translation>在文件管理器中显示(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Find in Folder</source>
        <translation>在文件夹中定位(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>键盘快捷键(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About Brevano</source>
        <translation>关于 Brevano(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>素材(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Delete Media</source>
        <translation>删除素材</translation>
    </message>
    <message>
        <source>Move Media</source>
        <translation>移动素材</translation>
    </message>
    <message>
        <source>Rename Media</source>
        <translation>重命名素材</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>重新链接</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>收藏</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Delete Folder</source>
        <translation>删除文件夹</translation>
    </message>
    <message>
        <source>Move Folder</source>
        <translation>移动文件夹</translation>
    </message>
    <message>
        <source>Rename Folder</source>
        <translation>重命名文件夹</translation>
    </message>
    <message>
        <source>Add to Timeline</source>
        <translation>添加到时间线</translation>
    </message>
    <message>
        <source>Add Split Screen</source>
        <translation>添加分屏</translation>
    </message>
    <message>
        <source>Fill Split Screen</source>
        <translation>填充分屏</translation>
    </message>
    <message>
        <source>Add Composite Timeline</source>
        <translation>添加复合时间线</translation>
    </message>
    <message>
        <source>Move Clip</source>
        <translation>移动片段</translation>
    </message>
    <message>
        <source>Delete Clip</source>
        <translation>删除片段</translation>
    </message>
    <message>
        <source>New Timeline</source>
        <translation>新建时间线</translation>
    </message>
    <message>
        <source>Delete Timeline</source>
        <translation>删除时间线</translation>
    </message>
    <message>
        <source>Rename Timeline</source>
        <translation>重命名时间线</translation>
    </message>
</context>
<context>
    <name>PanelView</name>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>媒体</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
</context>
<context>
    <name>ProjectDialogs</name>
    <message>
        <source>There is no project &quot;%1&quot;.</source>
        <translation>项目“%1”不存在。</translation>
    </message>
    <message>
        <source>It may have been moved or renamed, or its drive is not connected. Do you want to make a new project there?</source>
        <translation>它可能已被移动或重命名，或者所在驱动器未连接。要在该位置新建项目吗？</translation>
    </message>
    <message>
        <source>&amp;New Project</source>
        <translation>新建项目(&amp;N)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>ProjectHolder</name>
    <message>
        <source>No project was named.</source>
        <translation>未指定项目。</translation>
    </message>
    <message>
        <source>There is no project &quot;%1&quot;.</source>
        <translation>项目“%1”不存在。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already.</source>
        <translation>“%1”已存在。</translation>
    </message>
    <message>
        <source>No project is open.</source>
        <translation>没有打开的项目。</translation>
    </message>
    <message>
        <source>%1 (read-only)</source>
        <translation>%1（只读）</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>打开最近的项目(&amp;R)</translation>
    </message>
    <message>
        <source>No Recent Projects</source>
        <translation>没有最近的项目</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>清空列表(&amp;C)</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>按名称搜索</translation>
    </message>
    <message>
        <source>Show only media whose name holds this text</source>
        <translation>仅显示名称包含此文本的素材</translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translation>
            <numerusform>找到 %n 个</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ShortcutSheet</name>
    <message>
        <source>Go to the next media</source>
        <translation>转到下一个素材</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>方向键</translation>
    </message>
    <message>
        <source>Go to the first or the last media</source>
        <translation>转到第一个或最后一个素材</translation>
    </message>
    <message>
        <source>Home, End</source>
        <translation>Home、End</translation>
    </message>
    <message>
        <source>Turn a page</source>
        <translation>翻页</translation>
    </message>
    <message>
        <source>Page Up, Page Down</source>
        <translation>Page Up、Page Down</translation>
    </message>
    <message>
        <source>Go to a name</source>
        <translation>转到某个名称</translation>
    </message>
    <message>
        <source>Type how it begins</source>
        <translation>键入名称开头</translation>
    </message>
    <message>
        <source>Select as far as there</source>
        <translation>选择到该处</translation>
    </message>
    <message>
        <source>Shift + arrow keys, Shift + click</source>
        <translation>Shift + 方向键、Shift + 单击</translation>
    </message>
    <message>
        <source>Select one more, or one less</source>
        <translation>多选或少选一个</translation>
    </message>
    <message>
        <source>Ctrl + Space, Ctrl + click</source>
        <translation>Ctrl + 空格、Ctrl + 单击</translation>
    </message>
    <message>
        <source>Select the media, fold or unfold a group</source>
        <translation>选择素材，折叠或展开分组</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格</translation>
    </message>
    <message>
        <source>Fold or unfold a group</source>
        <translation>折叠或展开分组</translation>
    </message>
    <message>
        <source>Left, Right</source>
        <translation>左、右</translation>
    </message>
    <message>
        <source>Open the media</source>
        <translation>打开素材</translation>
    </message>
    <message>
        <source>Return, double click</source>
        <translation>回车、双击</translation>
    </message>
    <message>
        <source>Look through the media</source>
        <translation>浏览素材</translation>
    </message>
    <message>
        <source>Shift + move the pointer over it</source>
        <translation>Shift + 在其上移动指针</translation>
    </message>
    <message>
        <source>Make thumbnails larger or smaller</source>
        <translation>放大或缩小缩略图</translation>
    </message>
    <message>
        <source>Ctrl + mouse wheel</source>
        <translation>Ctrl + 鼠标滚轮</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>In the list of media</source>
        <translation>在素材列表中</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>Make a project, or open one</source>
        <translation>新建或打开一个项目</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>最近的项目</translation>
    </message>
</context>
<context>
    <name>TimelineDesk</name>
    <message>
        <source>There is no timeline to add to.</source>
        <translation>没有可添加到的时间线。</translation>
    </message>
    <message>
        <source>Timeline 1</source>
        <translation>时间线 1</translation>
    </message>
    <message>
        <source>No timeline can be made.</source>
        <translation>无法新建时间线。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be added to &quot;%2&quot;.</source>
        <translation>无法将“%1”添加到“%2”。</translation>
    </message>
</context>
<context>
    <name>ToolRow</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>已使用</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>帧速率</translation>
    </message>
    <message>
        <source>In Point</source>
        <translation>入点</translation>
    </message>
    <message>
        <source>Out Point</source>
        <translation>出点</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Audio Info</source>
        <translation>音频信息</translation>
    </message>
    <message>
        <source>Date Created</source>
        <translation>创建日期</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>最新</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>收藏</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Order of Import</source>
        <translation>导入顺序</translation>
    </message>
    <message>
        <source>No Groups</source>
        <translation>不分组</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>摄像机</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>排序</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>排序：%1</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>筛选：%1</translation>
    </message>
    <message>
        <source>No folder is shown that could be grouped</source>
        <translation>未显示可分组的文件夹</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>分组：%1</translation>
    </message>
    <message>
        <source>What a search finds is not grouped</source>
        <translation>搜索结果不分组</translation>
    </message>
    <message>
        <source>Media of this folder are shown in the order of its service, without groups</source>
        <translation>此文件夹的素材按服务提供的顺序显示，不分组</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Import files or folders</source>
        <translation>导入文件或文件夹</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>More tools</source>
        <translation>更多工具</translation>
    </message>
</context>
<context>
    <name>ToolTip</name>
    <message>
        <source>Click to download the online content</source>
        <translation>单击以下载在线内容</translation>
    </message>
    <message>
        <source>Drag to the timeline to apply</source>
        <translation>拖到时间线以应用</translation>
    </message>
    <message>
        <source>Media: %1</source>
        <translation>媒体：%1</translation>
    </message>
</context>
<context>
    <name>WindowDeeds</name>
    <message>
        <source>&amp;Undo %1</source>
        <translation>撤销%1(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>重做%1(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Import Files</source>
        <translation>导入文件</translation>
    </message>
    <message>
        <source>Import Folder</source>
        <translation>导入文件夹</translation>
    </message>
    <message>
        <source>The clipboard holds no files.</source>
        <translation>剪贴板中没有文件。</translation>
    </message>
    <message>
        <source>All media of this folder are used.</source>
        <translation>此文件夹的所有素材均已使用。</translation>
    </message>
    <message numerus="yes">
        <source>%n added to &quot;%1&quot;</source>
        <translation>
            <numerusform>已将 %n 个添加到“%1”</numerusform>
        </translation>
    </message>
    <message>
        <source>No file of this folder is missing.</source>
        <translation>此文件夹中没有丢失的文件。</translation>
    </message>
    <message>
        <source>Find Missing Files In</source>
        <translation>在以下位置查找丢失的文件</translation>
    </message>
    <message>
        <source>A search is running already.</source>
        <translation>已有搜索正在进行。</translation>
    </message>
</context>
</TS>
