--==== top.vhd ====
--top d
--


-- (legal notice)




--masks K=12 d q
--

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mgv21 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (4 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (4 DOWNTO 0)
	 ); 
 END top_mgv21;

 ARCHITECTURE RTL OF top_mgv21 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  mask :	STD_LOGIC_VECTOR (4 DOWNTO 0);
 BEGIN

	mask <= "01100";
	q <= (d XOR mask);

 END RTL; --top_mgv21


--masks K=21 d q
--

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mg031 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (4 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (4 DOWNTO 0)
	 ); 
 END top_mg031;

 ARCHITECTURE RTL OF top_mg031 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  mask :	STD_LOGIC_VECTOR (4 DOWNTO 0);
 BEGIN

	mask <= "10101";
	q <= (d XOR mask);

 END RTL; --top_mg031


--masks K=13 d q
--

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mg131 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (4 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (4 DOWNTO 0)
	 ); 
 END top_mg131;

 ARCHITECTURE RTL OF top_mg131 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  mask :	STD_LOGIC_VECTOR (4 DOWNTO 0);
 BEGIN

	mask <= "01101";
	q <= (d XOR mask);

 END RTL; --top_mg131

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (4 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (4 DOWNTO 0)
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_m1_q	:	STD_LOGIC_VECTOR (4 DOWNTO 0);
	 SIGNAL  wire_m2_q	:	STD_LOGIC_VECTOR (4 DOWNTO 0);
	 SIGNAL  wire_m3_q	:	STD_LOGIC_VECTOR (4 DOWNTO 0);
	 COMPONENT  top_mgv21
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(4 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(4 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  top_mg031
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(4 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(4 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  top_mg131
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(4 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(4 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	q <= wire_m3_q;
	m1 :  top_mgv21
	  PORT MAP ( 
		d => d,
		q => wire_m1_q
	  );
	m2 :  top_mg031
	  PORT MAP ( 
		d => wire_m1_q,
		q => wire_m2_q
	  );
	m3 :  top_mg131
	  PORT MAP ( 
		d => wire_m2_q,
		q => wire_m3_q
	  );

 END RTL; --top
--VALID FILE
