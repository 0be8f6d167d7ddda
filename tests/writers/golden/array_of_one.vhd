--==== top.vhd ====
--top a
--


-- (legal notice)




--wide d q
--

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mgul IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (1 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (1 DOWNTO 0)
	 ); 
 END top_mgul;

 ARCHITECTURE RTL OF top_mgul IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
 BEGIN

	q <= (NOT d);

 END RTL; --top_mgul

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 a	:	IN  STD_LOGIC_VECTOR (1 DOWNTO 0);
		 y	:	OUT  STD_LOGIC_VECTOR (1 DOWNTO 0);
		 z	:	OUT  STD_LOGIC_VECTOR (1 DOWNTO 0)
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_w_q	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  wire_x_0q	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 COMPONENT  top_mgul
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(1 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(1 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	y <= wire_w_q;
	z <= wire_x_0q;
	w :  top_mgul
	  PORT MAP ( 
		d => a,
		q => wire_w_q
	  );
	x_0 :  top_mgul
	  PORT MAP ( 
		d => wire_w_q,
		q => wire_x_0q
	  );

 END RTL; --top
--VALID FILE
